#include "tests/transcripts/Renewal.h"

#include <algorithm>

namespace transcripts {
namespace {

bool fits(const std::string& line, const std::string& pattern, Names names) {
    return matches(line, pattern, names);
}

} // namespace

std::vector<std::string> renewed(const std::vector<std::string>& patterns, const std::vector<std::string>& lines,
                                 Names& names) {
    // How many can be kept of the patterns from the first index on with the lines from the second one on.
    std::vector<std::vector<std::size_t>> kept(patterns.size() + 1, std::vector<std::size_t>(lines.size() + 1));
    for (auto pattern = patterns.size(); pattern-- > 0;) {
        for (auto line = lines.size(); line-- > 0;) {
            const auto together = kept[pattern + 1][line + 1] + (fits(lines[line], patterns[pattern], names) ? 1U : 0U);
            kept[pattern][line] = std::max({together, kept[pattern + 1][line], kept[pattern][line + 1]});
        }
    }
    std::vector<std::string> all;
    std::size_t pattern = 0;
    for (std::size_t line = 0; line < lines.size(); ++line) {
        while (pattern < patterns.size() && kept[pattern + 1][line] == kept[pattern][line]) {
            ++pattern;
        }
        if (kept[pattern][line + 1] < kept[pattern][line]) {
            matches(lines[line], patterns[pattern], names);
            all.push_back(patterns[pattern++]);
        } else {
            all.push_back(patternOf(lines[line]));
        }
    }
    return all;
}

} // namespace transcripts
