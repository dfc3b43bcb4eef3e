#include "wire/CaseFold.h"

#include <gtest/gtest.h>

namespace wire {
namespace {

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
} // namespace wire
