#include "wire/CaseFold.h"

#include <gtest/gtest.h>

#include <cstdint>

#include <locale.h>
#include <wctype.h>

namespace {

using wire::compareIgnoringCase;
using wire::foldCase;

TEST(CaseFold, lettersOfTheUsualScriptsLoseTheirCase) {
    EXPECT_EQ(foldCase(u'A'), u'a');
    EXPECT_EQ(foldCase(u'Å'), u'å');
    EXPECT_EQ(foldCase(u'Š'), u'š');
    EXPECT_EQ(foldCase(u'Ž'), u'ž');
    EXPECT_EQ(foldCase(u'Ÿ'), u'ÿ');
    EXPECT_EQ(foldCase(u'Ω'), u'ω');
    EXPECT_EQ(foldCase(u'ς'), u'σ');
    EXPECT_EQ(foldCase(u'Ж'), u'ж');
    EXPECT_EQ(foldCase(u'Ё'), u'ё');
    EXPECT_EQ(foldCase(u'Ệ'), u'ệ');
}

TEST(CaseFold, whatHasNoCaseStays) {
    for (const char16_t unit : {u'1', u' ', u'×', u'÷', u'ß', u'ı', u'字', char16_t{0xD83D}, u'z', u'ľ'}) {
        EXPECT_EQ(foldCase(unit), unit);
    }
}

TEST(CaseFold, aSmallLetterWithItsCapitalInAnotherBlockFoldsAlike) {
    EXPECT_EQ(foldCase(u'Ÿ'), foldCase(u'ÿ'));
    EXPECT_EQ(foldCase(u'ẞ'), foldCase(u'ß'));
    EXPECT_EQ(foldCase(u'Ɛ'), foldCase(u'ɛ'));
    EXPECT_EQ(foldCase(u'Ａ'), foldCase(u'ａ'));
}

TEST(CaseFold, theTurkishLettersWithAndWithoutADotAreLettersOfTheirOwn) {
    EXPECT_EQ(foldCase(u'I'), u'i');
    EXPECT_EQ(foldCase(u'İ'), u'İ');
    EXPECT_EQ(foldCase(u'ı'), u'ı');
}

TEST(CaseFold, greekLettersFoldAlikeWhereverTheyStandAndWithTheirAccents) {
    EXPECT_EQ(foldCase(u"ΣΊΣΥΦΟΣ"), foldCase(u"σίσυφος"));
    EXPECT_EQ(foldCase(u'Ώ'), u'ώ');
    EXPECT_NE(foldCase(u'ώ'), foldCase(u'ω'));
    EXPECT_EQ(foldCase(u'\u1F88'), u'\u1F80');
    EXPECT_EQ(foldCase(u'\u00B5'), u'μ') << "the sign of a millionth";
}

TEST(CaseFold, aTextKeepsItsLength) {
    EXPECT_EQ(foldCase(u"STRAẞE \U00010400"), u"straße \U00010400");
}

TEST(CaseFold, foldingAgainChangesNothing) {
    for (std::uint32_t number = 0; number <= 0xFFFF; ++number) {
        const auto unit = static_cast<char16_t>(number);
        EXPECT_EQ(foldCase(foldCase(unit)), foldCase(unit)) << number;
    }
}

#ifndef _WIN32
// The C library has a table of its own: an upper and lower case pair in it must fold to one letter here, too.
TEST(CaseFold, agreesWithThePlatform) {
    locale_t unicode = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    ASSERT_NE(unicode, nullptr);
    int letters = 0;
    for (std::uint32_t number = 0; number <= 0xFFFF; ++number) {
        const auto unit = static_cast<char16_t>(number);
        const auto small = static_cast<char16_t>(towlower_l(number, unicode));
        if (small != unit && unit != u'İ') {
            ++letters;
            EXPECT_EQ(foldCase(unit), foldCase(small)) << number;
        }
    }
    freelocale(unicode);
    EXPECT_GT(letters, 1000);
}
#endif

TEST(CaseFold, textsCompareByTheirUnitsWithoutCase) {
    EXPECT_EQ(compareIgnoringCase(u"Printer", u"pRINTER"), 0);
    EXPECT_LT(compareIgnoringCase(u"apple", u"Banana"), 0);
    EXPECT_GT(compareIgnoringCase(u"banana", u"Apple"), 0);
    EXPECT_LT(compareIgnoringCase(u"Print", u"printer"), 0);
    EXPECT_GT(compareIgnoringCase(u"Printer", u"print"), 0);
    EXPECT_EQ(compareIgnoringCase(u"", u""), 0);
    EXPECT_LT(compareIgnoringCase(u"", u"a"), 0);
}

} // namespace
