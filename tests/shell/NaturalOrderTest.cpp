#include "shell/NaturalOrder.h"

#include <gtest/gtest.h>

namespace {

bool stands(wire::WideStringView first, wire::WideStringView second) {
    return shell::naturalKey(first) < shell::naturalKey(second);
}

TEST(NaturalOrder, numbersStandByTheirValue) {
    EXPECT_TRUE(stands(u"Floor 9", u"Floor 10"));
    EXPECT_TRUE(stands(u"10.0.0.9", u"10.0.0.12"));
}

TEST(NaturalOrder, leadingZerosDoNotCount) {
    EXPECT_EQ(shell::naturalKey(u"P007"), shell::naturalKey(u"P7"));
    EXPECT_TRUE(stands(u"P007", u"P8"));
    EXPECT_TRUE(stands(u"P000", u"P1"));
}

TEST(NaturalOrder, caseDoesNotCount) {
    EXPECT_TRUE(stands(u"alpha", u"Beta"));
    EXPECT_TRUE(stands(u"Alpha", u"beta"));
    EXPECT_EQ(shell::naturalKey(u"ZÜRICH"), shell::naturalKey(u"Zürich"));
}

TEST(NaturalOrder, accentsDoNotCount) {
    EXPECT_TRUE(stands(u"Łódź", u"München"));
    EXPECT_TRUE(stands(u"Århus", u"Berlin"));
    EXPECT_EQ(shell::naturalKey(u"Straße"), shell::naturalKey(u"strase"));
}

TEST(NaturalOrder, aBeginningStandsBeforeTheWhole) {
    EXPECT_TRUE(stands(u"Hall", u"Hall 2"));
    EXPECT_TRUE(stands(u"", u"a"));
}

TEST(NaturalOrder, numbersOfAnyLengthAreTaken) {
    EXPECT_TRUE(stands(u"99999999999999999999999", u"100000000000000000000000"));
}

TEST(NaturalOrder, aKeyIsPutBehindWhatIsThere) {
    wire::WideString keys = u"before ";

    shell::appendNaturalKey(keys, u"P1");

    EXPECT_EQ(keys, u"before " + shell::naturalKey(u"P1"));
}

} // namespace
