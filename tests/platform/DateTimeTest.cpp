#include "platform/DateTime.h"

#include "tests/support/Environment.h"
#include "wire/WireDate.h"

#include <gtest/gtest.h>

namespace platform {
namespace {

TEST(DateTime, isWrittenAsTheServerWritesDates) {
    const DateTime value{.year = 2014, .month = 3, .day = 5, .hour = 17, .minute = 4, .second = 9};

    EXPECT_EQ(toWireDate(value), u"2014-03-05 17:04:09");
}

TEST(DateTime, aPeriodOfWholeDaysGoesFromTheFirstSecondToTheLast) {
    const DateTime first{.year = 987, .month = 12, .day = 31};
    const DateTime last{.year = 9999, .month = 1, .day = 1, .hour = 23, .minute = 59, .second = 59};

    EXPECT_EQ(toWireDate(first), u"0987-12-31 00:00:00");
    EXPECT_EQ(toWireDate(last), u"9999-01-01 23:59:59");
}

TEST(DateTime, isShownInTheWayOfTheUserOnceTheServerSendsItBack) {
    const support::EnvironmentVariable locale("LC_ALL", "C");

    EXPECT_EQ(wire::formatWireDateWide(toWireDate({.year = 2014, .month = 3, .day = 5, .hour = 17})),
              u"03/05/14 17:00:00");
}

TEST(DateTime, isOneOnlyOnDaysThatAreInTheCalendar) {
    EXPECT_TRUE(isValid({.year = 2024, .month = 2, .day = 29}));
    EXPECT_FALSE(isValid({.year = 2023, .month = 2, .day = 29}));
    EXPECT_FALSE(isValid({.year = 2023, .month = 13, .day = 1}));
    EXPECT_FALSE(isValid({.year = 2023, .month = 1, .day = 1, .hour = 24}));
}

} // namespace
} // namespace platform
