#include "shell/RowFilter.h"

#include "wire/CaseFold.h"

#include <algorithm>

namespace shell {

RowFilter::RowFilter(wire::WideStringView text) : folded_(wire::foldCase(text)) {}

bool RowFilter::matches(wire::WideStringView cell) const {
    const auto found = std::search(cell.begin(), cell.end(), folded_.begin(), folded_.end(),
                                   [](char16_t unit, char16_t folded) { return wire::foldCase(unit) == folded; });
    return folded_.empty() || found != cell.end();
}

} // namespace shell
