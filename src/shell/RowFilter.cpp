#include "shell/RowFilter.h"

#include "console/CaseFold.h"

#include <algorithm>

namespace shell {

RowFilter::RowFilter(wire::WideStringView text) : folded_(text) {
    std::ranges::transform(folded_, folded_.begin(), console::foldCase);
}

bool RowFilter::matches(wire::WideStringView cell) const {
    const auto found = std::search(cell.begin(), cell.end(), folded_.begin(), folded_.end(),
                                   [](char16_t unit, char16_t folded) { return console::foldCase(unit) == folded; });
    return folded_.empty() || found != cell.end();
}

} // namespace shell
