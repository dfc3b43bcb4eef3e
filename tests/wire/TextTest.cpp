#include "wire/Text.h"

#include <gtest/gtest.h>

using wire::toUtf8;
using wire::toWide;
using wire::WideString;

TEST(Text, textOfEveryLengthOfUtf8GoesBothWays) {
    const std::string utf8 = "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80";
    const WideString wide{u'a', 0xE9, 0x20AC, 0xD83D, 0xDE00};
    EXPECT_EQ(toWide(utf8), wide);
    EXPECT_EQ(toUtf8(wide), utf8);
}

TEST(Text, aZeroCharacterIsKept) {
    EXPECT_EQ(toUtf8(WideString{u'a', 0, u'b'}), std::string("a\0b", 3));
    EXPECT_EQ(toWide(std::string_view("a\0b", 3)), (WideString{u'a', 0, u'b'}));
}

TEST(Text, aLoneSurrogateBecomesAReplacementCharacter) {
    EXPECT_EQ(toUtf8(WideString{0xD83D, u'a'}), "\xEF\xBF\xBD"
                                                "a");
    EXPECT_EQ(toUtf8(WideString{u'a', 0xD83D}), "a\xEF\xBF\xBD");
    EXPECT_EQ(toUtf8(WideString{0xDE00, 0xD83D, 0xDE00}), "\xEF\xBF\xBD\xF0\x9F\x98\x80");
}

TEST(Text, malformedUtf8BecomesReplacementCharacters) {
    EXPECT_EQ(toWide("\x80"
                     "a"),
              u"\xFFFD"
              u"a"); // a continuation byte
    EXPECT_EQ(toWide("\xE2\x82"
                     "a"),
              u"\xFFFD"
              u"a");                                  // a truncated sequence
    EXPECT_EQ(toWide("\xE2\x82"), u"\xFFFD");         // a sequence cut at the end
    EXPECT_EQ(toWide("\xE0\x80\xAF"), u"\xFFFD");     // an overlong form
    EXPECT_EQ(toWide("\xED\xA0\xBD"), u"\xFFFD");     // a surrogate
    EXPECT_EQ(toWide("\xF4\x90\x80\x80"), u"\xFFFD"); // beyond Unicode
    EXPECT_EQ(toWide("\xC0\xAF"), u"\xFFFD\xFFFD");   // a lead byte that is never valid
    EXPECT_EQ(toWide("\xFF"), u"\xFFFD");
}

TEST(Text, theCodePageGivesPlainTextBack) {
    EXPECT_EQ(wire::toCodePage(u"2014-03-05"), "2014-03-05");
    EXPECT_EQ(wire::fromCodePage("2014-03-05"), u"2014-03-05");
}
