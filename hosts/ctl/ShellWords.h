#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ctl {

// The words of a line as a shell splits it: single quotes keep everything, double quotes and backslashes work as in a
// shell, "#" at the beginning of a word starts a comment. Nothing is expanded. Throws Failure (usage) for an
// unterminated quote.
std::vector<std::string> shellWords(std::string_view line);

} // namespace ctl
