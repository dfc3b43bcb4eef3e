#pragma once

#include <map>
#include <string>
#include <string_view>

namespace transcripts {

// The texts that patterns have given a name.
using Names = std::map<std::string, std::string, std::less<>>;

// Whether a line is as the pattern says. {uuid}, {number}, {date} (with or without a time) and {any} stand for a text
// of that kind; {limit:uuid} calls it "limit", and {limit} is that text from then on.
bool matches(std::string_view line, std::string_view pattern, Names& names);

// The text with the names replaced by what they stand for.
std::string withNames(std::string_view text, const Names& names);

// A pattern for the line: uuids and dates change from run to run.
std::string patternOf(std::string_view line);

} // namespace transcripts
