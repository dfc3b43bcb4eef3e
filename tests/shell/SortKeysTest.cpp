#include "shell/SortKeys.h"

#include <gtest/gtest.h>

namespace {

using Places = std::vector<std::uint32_t>;
using Texts = std::vector<wire::WideString>;

Places sorted(const Texts& texts, bool ascending = true) {
    shell::SortKeys keys;
    for (const auto& text : texts) {
        keys.add(text);
    }
    return keys.sorted(ascending);
}

TEST(SortKeys, textsStandInNaturalOrder) {
    EXPECT_EQ(sorted({u"Floor 10", u"floor 9", u"Attic"}), (Places{2, 1, 0}));
}

TEST(SortKeys, numbersStandByTheirValuesBehindRowsWithoutAnything) {
    shell::SortKeys keys;
    for (const std::int64_t number : {std::int64_t{70000}, std::int64_t{-2}, std::int64_t{9}, std::int64_t{-1}}) {
        keys.add(number);
    }
    keys.add(u"");

    EXPECT_EQ(keys.sorted(true), (Places{4, 1, 3, 2, 0}));
}

TEST(SortKeys, descendingTurnsTheOrderRound) {
    EXPECT_EQ(sorted({u"b", u"c", u"a"}, false), (Places{1, 0, 2}));
}

TEST(SortKeys, equalTextsStandAsAddedInBothDirections) {
    EXPECT_EQ(sorted({u"x", u"X", u"a", u"x"}, true), (Places{2, 0, 1, 3}));
    EXPECT_EQ(sorted({u"x", u"X", u"a", u"x"}, false), (Places{0, 1, 3, 2}));
}

TEST(SortKeys, whatTextsBeginWithInCommonDoesNotHideTheRest) {
    EXPECT_EQ(sorted({u"Hall 2 west", u"Hall", u"Hall 2 east", u"Hall 10"}), (Places{1, 2, 0, 3}));
}

TEST(SortKeys, textsThatDifferLateAreComparedToTheirEnds) {
    EXPECT_EQ(sorted({u"Abcdefghijkz", u"Abcdefghijka", u"Bcd"}), (Places{1, 0, 2}));
}

TEST(SortKeys, aTextWithAZeroUnitStandsAfterTheOneThatEndsThere) {
    EXPECT_EQ(sorted({wire::WideString(u"a\0", 2), u"a", u"b"}), (Places{1, 0, 2}));
}

TEST(SortKeys, theTiesAreThePartsWithEqualTexts) {
    shell::SortKeys keys;
    for (const auto* const text : {u"b", u"a", u"c", u"B", u"c", u"d"}) {
        keys.add(wire::WideStringView(text));
    }
    EXPECT_EQ(keys.sorted(true), (Places{1, 0, 3, 2, 4, 5}));
    ASSERT_EQ(keys.ties().size(), 2U);
    EXPECT_EQ(keys.ties()[0].begin, 1U);
    EXPECT_EQ(keys.ties()[0].length, 2U);
    EXPECT_EQ(keys.ties()[1].begin, 3U);
    EXPECT_EQ(keys.ties()[1].length, 2U);
}

TEST(SortKeys, noTextsHaveNoPlaces) {
    EXPECT_EQ(sorted({}), Places{});
}

} // namespace
