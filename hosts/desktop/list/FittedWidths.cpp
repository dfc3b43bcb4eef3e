#include "hosts/desktop/list/FittedWidths.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace desktop {

std::vector<int> fittedWidths(const std::vector<ColumnWish>& wishes, int room) {
    std::vector<int> widths;
    std::vector<bool> settled;
    std::int64_t wished = 0; // by the columns not settled yet, which share what is left
    std::int64_t left = room;
    for (const auto& wish : wishes) {
        widths.push_back(wish.natural);
        settled.push_back(wish.natural <= wish.least);
        (settled.back() ? left : wished) += settled.back() ? -wish.natural : wish.natural;
    }
    if (wished <= left) {
        return widths;
    }
    // A column that needs its least width leaves less to the others: repeat until none is too narrow.
    for (bool again = true; again;) {
        again = false;
        const auto wishedNow = wished;
        const auto leftNow = std::max<std::int64_t>(left, 0);
        for (std::size_t column = 0; column < wishes.size(); ++column) {
            if (settled[column]) {
                continue;
            }
            const auto [natural, least] = wishes[column];
            widths[column] = static_cast<int>(natural * leftNow / wishedNow);
            if (widths[column] < least) {
                widths[column] = least;
                settled[column] = true;
                wished -= natural;
                left -= least;
                again = true;
            }
        }
    }
    return widths;
}

} // namespace desktop
