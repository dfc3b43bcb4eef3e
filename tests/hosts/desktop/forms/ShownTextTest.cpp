#include "hosts/desktop/forms/ShownText.h"

#include <gtest/gtest.h>

namespace desktop {
namespace {

TEST(ShownText, everyUnitOfATextComesBackAsItWas) {
    const wire::WideString odd{u'\uFEFF', char16_t(0xD800), u'a', u'\0', u'\n'};
    EXPECT_EQ(exactText(exactText(odd)), odd);
}

TEST(ShownText, aLineBreakDoesNotBreakALine) {
    EXPECT_FALSE(shownLine(u"two\nlines").contains(QLatin1Char('\n')));
}

TEST(ShownText, aLineIsCutWhereNobodyReadsOn) {
    EXPECT_EQ(shownLine(wire::WideString(65'535, u'x')).size(), 401);
    EXPECT_TRUE(shownLine(wire::WideString(65'535, u'x')).endsWith(QChar(0x2026)));
}

TEST(ShownText, aCutDoesNotSplitAPair) {
    wire::WideString text(399, u'x');
    text += u"\U0001F5A8 more";
    EXPECT_EQ(shownLine(text), exactText(wire::WideString(399, u'x') + u'\u2026'));
}

TEST(ShownText, aTextKeepsItsLineBreaksAndLosesOtherControlCharacters) {
    EXPECT_EQ(shownText(u"a\r\nb\tc\x01\u202E"), QStringLiteral("a\nb c"));
}

TEST(ShownText, aRunWithoutBlanksCanBeBroken) {
    EXPECT_EQ(shownText(wire::WideString(130, u'x')).count(QChar(0x200B)), 2);
    EXPECT_EQ(shownText(wire::WideString(60, u'x')).count(QChar(0x200B)), 0);
}

TEST(ShownText, ampersandsAreShownAsTheyAre) {
    EXPECT_EQ(withoutAccessKey(QStringLiteral("A & B")), QStringLiteral("A && B"));
}

} // namespace
} // namespace desktop
