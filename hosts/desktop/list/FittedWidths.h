#pragma once

#include <vector>

namespace desktop {

// How wide a column would like to be, and how narrow it may become.
struct ColumnWish {
    int natural = 0;
    int least = 0;
};

// The widths of columns that share the room: as they would like to be where there is room for all, else narrower in
// proportion, none below its least width. Where not even those fit, all have their least widths. In the order given.
std::vector<int> fittedWidths(const std::vector<ColumnWish>& wishes, int room);

} // namespace desktop
