#include "shell/FilterValue.h"

#include "wire/WireDate.h"

#include <gtest/gtest.h>

namespace {

constexpr std::int64_t millisecondsPerSecond = 1000;

TEST(FilterValue, aNumberMeansItself) {
    ASSERT_TRUE(shell::numbersMeant(u"-12"));
    EXPECT_EQ(shell::numbersMeant(u"-12")->first, -12);
    EXPECT_EQ(shell::numbersMeant(u"-12")->last, -12);
}

TEST(FilterValue, aDayMeansAllOfItsMoments) {
    const auto day = shell::numbersMeant(u"2024-02-29");

    ASSERT_TRUE(day);
    EXPECT_EQ(day->first, wire::wireDateOrder("2024-02-29 00:00:00"));
    EXPECT_EQ(day->last, wire::wireDateOrder("2024-03-01 00:00:00") - 1);
}

TEST(FilterValue, aMonthMeansAllOfItsDays) {
    const auto month = shell::numbersMeant(u"2023-12");

    ASSERT_TRUE(month);
    EXPECT_EQ(month->first, wire::wireDateOrder("2023-12-01 00:00:00"));
    EXPECT_EQ(month->last, wire::wireDateOrder("2024-01-01 00:00:00") - 1);
}

TEST(FilterValue, aTimeMeansItsMinuteOrItsSecond) {
    const auto noon = wire::wireDateOrder("2024-03-05 12:00:00");

    EXPECT_EQ(shell::numbersMeant(u"2024-03-05 12:00")->last, noon + 60 * millisecondsPerSecond - 1);
    EXPECT_EQ(shell::numbersMeant(u"2024-03-05T12:00:00")->first, noon);
    EXPECT_EQ(shell::numbersMeant(u"2024-03-05 12:00:00")->last, noon + millisecondsPerSecond - 1);
}

TEST(FilterValue, nothingElseMeansANumber) {
    for (const auto* const text : {u"", u"12x", u"1.5", u"2024-13", u"2024-02-30", u"2024-3-5", u"2024-03-05 24:00",
                                   u"2024-03-05 12", u"2024-03-05 12:00:00x", u"99999999999999999999", u"+1"}) {
        EXPECT_FALSE(shell::numbersMeant(text)) << wire::toUtf8(text);
    }
}

} // namespace
