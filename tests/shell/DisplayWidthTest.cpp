#include "shell/DisplayWidth.h"

#include <gtest/gtest.h>

namespace {

using shell::displayWidth;

TEST(DisplayWidth, latinLettersTakeOneCellEach) {
    EXPECT_EQ(displayWidth(u"Zürich"), 6U);
}

TEST(DisplayWidth, eastAsianLettersTakeTwo) {
    EXPECT_EQ(displayWidth(u"東京"), 4U);
}

TEST(DisplayWidth, aPictureOutsideTheBasicPlaneTakesTwo) {
    EXPECT_EQ(displayWidth(u"\U0001F5A8"), 2U);
}

TEST(DisplayWidth, marksOnALetterTakeNone) {
    EXPECT_EQ(displayWidth(u"e\u0301"), 1U);
}

TEST(DisplayWidth, aLoneSurrogateTakesOne) {
    const char16_t lone[] = {0xD83D, u'a', 0};

    EXPECT_EQ(displayWidth(lone), 2U);
}

} // namespace
