#include "hosts/desktop/list/FittedWidths.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using desktop::fittedWidths;
using Widths = std::vector<int>;

TEST(FittedWidths, columnsWithRoomKeepTheirWidths) {
    EXPECT_EQ((Widths{200, 100}), fittedWidths({{200, 50}, {100, 50}}, 300));
}

TEST(FittedWidths, columnsWithoutRoomBecomeNarrowerInProportion) {
    EXPECT_EQ((Widths{100, 50}), fittedWidths({{200, 20}, {100, 20}}, 150));
}

TEST(FittedWidths, aColumnKeepsItsLeastWidthAndTheOthersShareTheRest) {
    EXPECT_EQ((Widths{60, 90, 45}), fittedWidths({{100, 60}, {200, 20}, {100, 20}}, 195));
}

TEST(FittedWidths, aColumnThatIsNarrowByNatureIsNotMadeWider) {
    EXPECT_EQ((Widths{30, 120}), fittedWidths({{30, 60}, {200, 20}}, 150));
}

TEST(FittedWidths, whereNothingFitsAllAreAtTheirLeast) {
    EXPECT_EQ((Widths{60, 70}), fittedWidths({{100, 60}, {200, 70}}, 10));
    EXPECT_EQ((Widths{60, 70}), fittedWidths({{100, 60}, {200, 70}}, -5));
}

TEST(FittedWidths, hugeWidthsDoNotOverflow) {
    constexpr int huge = std::numeric_limits<int>::max();
    EXPECT_EQ((Widths{50, 50}), fittedWidths({{huge, 10}, {huge, 10}}, 100));
}

TEST(FittedWidths, noColumnsHaveNoWidths) {
    EXPECT_TRUE(fittedWidths({}, 100).empty());
}

} // namespace
