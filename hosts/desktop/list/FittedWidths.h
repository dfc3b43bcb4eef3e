#pragma once

#include <vector>

namespace desktop {

// The preferred and the least width of a column.
struct ColumnWish {
    int natural = 0;
    int least = 0;
};

// The widths of columns that share the available width: their preferred widths if these fit, otherwise proportionally
// narrower, but none below its least width. If not even the least widths fit, all columns have those. In the order
// given.
std::vector<int> fittedWidths(const std::vector<ColumnWish>& wishes, int room);

} // namespace desktop
