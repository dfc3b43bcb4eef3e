#include "hosts/ctl/PrintableText.h"
#include "hosts/ctl/Failure.h"

#include <gtest/gtest.h>

namespace {

using Texts = std::vector<wire::WideString>;

TEST(Words, anExactNameWinsOverOneInAnotherCase) {
    EXPECT_EQ(ctl::placeOf(u"north", Texts{u"North", u"north"}, "node"), 1U);
}

TEST(Words, aNameInAnotherCaseIsFoundWhenItIsTheOnlyOne) {
    EXPECT_EQ(ctl::placeOf(u"NORTH", Texts{u"South", u"North"}, "node"), 1U);
    EXPECT_THROW(ctl::placeOf(u"NORTH", Texts{u"north", u"North"}, "node"), ctl::Failure);
}

TEST(Words, twoOfOneNameAreAnError) {
    EXPECT_THROW(ctl::placeOf(u"North", Texts{u"North", u"North"}, "node"), ctl::Failure);
}

TEST(Words, whoeverNamesTwoOfOneNameIsToldHowToNameOne) {
    try {
        static_cast<void>(ctl::placeOf(u"North", Texts{u"North", u"South", u"North"}, "node"));
        ADD_FAILURE();
    } catch (const ctl::Failure& failure) {
        EXPECT_STREQ(failure.what(),
                     "There is more than one node \"North\"; say which with \"North#1\" to \"North#2\"");
    }
}

TEST(Words, aNumberBehindTheNameTellsWhichOfThoseCalledSo) {
    const Texts texts{u"North", u"South", u"North", u"north"};

    EXPECT_EQ(ctl::placeOf(u"North#2", texts, "node"), 2U);
    EXPECT_EQ(ctl::placeOf(u"north#1", texts, "node"), 3U);
    EXPECT_EQ(ctl::placeOf(u"NORTH#3", texts, "node"), 3U);
    EXPECT_EQ(ctl::placeOf(u"North#3", texts, "node"), texts.size());
}

TEST(Words, aNumberAloneCountsAll) {
    const Texts texts{u"North", u"South"};

    EXPECT_EQ(ctl::placeOf(u"#2", texts, "node"), 1U);
    EXPECT_EQ(ctl::placeOf(u"#3", texts, "node"), texts.size());
    EXPECT_EQ(ctl::placeOf(u"#0", texts, "node"), texts.size());
    EXPECT_EQ(ctl::placeOf(u"#", texts, "node"), texts.size());
    EXPECT_EQ(ctl::placeOf(u"#99999999999999999999", texts, "node"), texts.size());
}

TEST(Words, aNameThatReallyEndsInANumberWins) {
    EXPECT_EQ(ctl::placeOf(u"Hall#2", Texts{u"Hall", u"Hall#2", u"Hall"}, "node"), 1U);
    EXPECT_EQ(ctl::placeOf(u"#1", Texts{u"Hall", u"#1"}, "node"), 1U);
}

TEST(Words, whatOccursSeveralTimesIsListedWithItsNumber) {
    EXPECT_EQ(ctl::listed(Texts{u"North", u"South", u"North"}), "\"North#1\", \"South\", \"North#2\"");
}

TEST(Words, anUnknownNameHasNoPlace) {
    EXPECT_EQ(ctl::placeOf(u"East", Texts{u"North"}, "node"), 1U);
}

TEST(Words, aLongListIsCutAtTwenty) {
    Texts texts(25, u"x");

    EXPECT_TRUE(ctl::listed(texts).ends_with("\"x#20\" and 5 more"));
}

TEST(Words, whatIsShownStaysOnOneLine) {
    EXPECT_EQ(ctl::shown(u"a\nb"), "a\u240Ab");
}

} // namespace
