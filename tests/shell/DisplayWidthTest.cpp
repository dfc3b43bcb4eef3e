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

TEST(DisplayWidth, aTextThatIsCutEndsWithAnEllipsis) {
    EXPECT_EQ(shell::elided(u"Hall", 4), u"Hall");
    EXPECT_EQ(shell::elided(u"Halls", 4), u"Hal…");
    EXPECT_EQ(shell::elided(u"東京東", 5), u"東京…");
    EXPECT_EQ(shell::elided(u"東京東", 4), u"東…");
    EXPECT_EQ(shell::elided(u"a\U0001F5A8b", 3), u"a…");
    EXPECT_EQ(shell::elided(u"ab", 1), u"…");
    EXPECT_EQ(shell::elided(u"ab", 0), u"");
}

TEST(DisplayWidth, aLoneSurrogateTakesOne) {
    const char16_t lone[] = {0xD83D, u'a', 0};

    EXPECT_EQ(displayWidth(lone), 2U);
}

} // namespace
