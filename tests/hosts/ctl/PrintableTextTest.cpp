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

TEST(Words, anUnknownNameHasNoPlace) {
    EXPECT_EQ(ctl::placeOf(u"East", Texts{u"North"}, "node"), 1U);
}

TEST(Words, aLongListIsCutAtTwenty) {
    Texts texts(25, u"x");

    EXPECT_TRUE(ctl::listed(texts).ends_with("\"x\" and 5 more"));
}

TEST(Words, whatIsShownStaysOnOneLine) {
    EXPECT_EQ(ctl::shown(u"a\nb"), "a\u240Ab");
}

} // namespace
