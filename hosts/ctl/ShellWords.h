#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ctl {

// The words of a line as a shell reads it: single quotes keep everything, double quotes and the backslash as there, "#"
// at the beginning of a word starts a comment. Nothing is expanded. Throws Failure (usage) for a quote without its end.
std::vector<std::string> shellWords(std::string_view line);

} // namespace ctl
