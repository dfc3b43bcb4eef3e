#include "shell/NumberColumn.h"

#include <algorithm>
#include <string>

namespace shell {
namespace {

constexpr std::size_t examinedRows = 100; // enough to tell, and quick

// The digits of a number without those that only say how large or how exact it is: "0.750" and "750" both have "75".
std::string significant(std::string digits) {
    digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size()));
    digits.erase(digits.find_last_not_of('0') + 1);
    return digits;
}

std::string digitsOf(wire::WideStringView text) {
    std::string digits;
    for (const char16_t unit : text) {
        if (unit >= u'0' && unit <= u'9') {
            digits += static_cast<char>(unit);
        }
    }
    return digits;
}

bool showsNumber(wire::WideStringView text, std::int64_t number) {
    const auto shown = digitsOf(text);
    auto sorted = std::to_string(number);
    sorted.erase(0, number < 0 ? 1 : 0);
    return !shown.empty() && significant(shown) == significant(sorted);
}

} // namespace

bool holdsNumbers(const ResultPane& pane, std::int32_t column) {
    bool any = false;
    for (std::size_t place = 0; place < std::min(pane.rowCount(), examinedRows); ++place) {
        const auto text = pane.cell(place, column);
        if (text.empty()) {
            continue;
        }
        const auto number = pane.row(place).node->sortValue(column);
        if (!number || !showsNumber(text, *number)) {
            return false;
        }
        any = true;
    }
    return any;
}

} // namespace shell
