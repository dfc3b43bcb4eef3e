#pragma once

#include "tests/transcripts/LinePattern.h"

#include <string>
#include <vector>

namespace transcripts {

// The lines that came as the patterns of a transcript: those that stood there, as many as still match in their order,
// and new ones for the other lines. Gives names as the kept ones say.
std::vector<std::string> renewed(const std::vector<std::string>& patterns, const std::vector<std::string>& lines,
                                 Names& names);

} // namespace transcripts
