#include "shell/RowFilter.h"

#include "wire/CaseFold.h"

#include <algorithm>

namespace shell {
namespace {

char16_t lowerCase(char16_t unit) {
    if (unit < 0x80) { // nearly all of them
        return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + 0x20) : unit;
    }
    return wire::foldCase(unit);
}

} // namespace

RowFilter::RowFilter(wire::WideStringView text) : folded_(text) {
    std::ranges::transform(folded_, folded_.begin(), lowerCase);
}

bool RowFilter::matches(wire::WideStringView cell) const {
    const auto found = std::search(cell.begin(), cell.end(), folded_.begin(), folded_.end(),
                                   [](char16_t unit, char16_t folded) { return lowerCase(unit) == folded; });
    return folded_.empty() || found != cell.end();
}

} // namespace shell
