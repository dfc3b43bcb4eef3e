#include "server/store/NameKey.h"

#include <gtest/gtest.h>

namespace server {

TEST(NameKey, capitalAndSmallLettersAreTheSame) {
    EXPECT_EQ(nameKey(u"Printer 1"), nameKey(u"PRINTER 1"));
    EXPECT_EQ(nameKey(u"ÄÖÜ Čžň"), nameKey(u"äöü čŽŇ"));
    EXPECT_EQ(nameKey(u"ΑΘ"), nameKey(u"αθ"));
    EXPECT_EQ(nameKey(u"МОСКВА Ё"), nameKey(u"москва ё"));
}

TEST(NameKey, aLetterWhoseCapitalStandsFarFromItHasNoCaseEither) {
    EXPECT_EQ(nameKey(u"\u0178"), nameKey(u"\u00FF")); // y with two dots
    EXPECT_EQ(nameKey(u"\u03C2"), nameKey(u"\u03C3")); // a sigma at the end of a word, and elsewhere
    EXPECT_EQ(nameKey(u"\u03C2"), nameKey(u"\u03A3"));
}

TEST(NameKey, differentLettersStayDifferent) {
    EXPECT_NE(nameKey(u"a"), nameKey(u"ä"));
    EXPECT_NE(nameKey(u"×"), nameKey(u"÷"));
    EXPECT_NE(nameKey(u"["), nameKey(u"{"));
}

TEST(NameKey, keysCompareAsTheUnitsOfTheNames) {
    EXPECT_LT(nameKey(u"a"), nameKey(u"b"));
    EXPECT_LT(nameKey(u"z"), nameKey(u"ā"));
    EXPECT_LT(nameKey(u"a"), nameKey(u"ab"));
}

TEST(NameKey, theKeyOfAnEmptyNameIsEmpty) {
    EXPECT_TRUE(nameKey(u"").empty());
}

TEST(NameKey, aUnitIsTwoBytesWithTheHighOneFirst) {
    EXPECT_EQ(nameKey(u"A\u6771"), (Bytes{0x00, 0x61, 0x67, 0x71}));
}

} // namespace server
