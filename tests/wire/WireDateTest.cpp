#include "wire/WireDate.h"
#include "tests/support/Environment.h"

#include <gtest/gtest.h>

using support::EnvironmentVariable;
using wire::formatWireDate;

namespace {

// The plain locale, whose short date is month/day/year in two digits each.
class WireDate : public testing::Test {
    EnvironmentVariable everything_{"LC_ALL", "C"};
};

} // namespace

TEST_F(WireDate, aDateWithAFractionIsShownShort) {
    bool valid = false;
    EXPECT_EQ(formatWireDate("2014-03-05 17:04:09.250", &valid), "03/05/14 17:04:09");
    EXPECT_TRUE(valid);
}

TEST_F(WireDate, aDateWithoutAFractionIsShownTheSame) {
    bool valid = false;
    EXPECT_EQ(formatWireDate("2014-03-05 17:04:09", &valid), "03/05/14 17:04:09");
    EXPECT_TRUE(valid);
}

TEST_F(WireDate, fiveNumbersAreValidThoughTheSecondsStayUnknown) {
    bool valid = false;
    EXPECT_EQ(formatWireDate("2014-03-05 17:04", &valid), "2014-03-05 17:04");
    EXPECT_TRUE(valid);
}

TEST_F(WireDate, fourNumbersAreNotValid) {
    bool valid = true;
    EXPECT_EQ(formatWireDate("2014-03-05 17", &valid), "2014-03-05 17");
    EXPECT_FALSE(valid);
}

TEST_F(WireDate, aTextThatIsNoDateComesBackUnchanged) {
    bool valid = true;
    EXPECT_EQ(formatWireDate("never", &valid), "never");
    EXPECT_FALSE(valid);
    EXPECT_EQ(formatWireDate("", &valid), "");
    EXPECT_FALSE(valid);
}

TEST_F(WireDate, numbersThatNoCalendarHasComeBackUnchanged) {
    for (const char* const text :
         {"2014-13-05 17:04:09", "2014-00-05 17:04:09", "2014-02-29 17:04:09", "2014-03-32 17:04:09",
          "2014-269-05 17:04:09", "0000-00-00 00:00:00", "1600-12-31 00:00:00", "30828-01-01 00:00:00"}) {
        EXPECT_EQ(formatWireDate(text), text);
    }
}

TEST_F(WireDate, numbersThatNoClockHasComeBackUnchanged) {
    for (const char* const text :
         {"2014-03-05 24:04:09", "2014-03-05 25:04:09", "2014-03-05 17:60:09", "2014-03-05 17:04:60"}) {
        EXPECT_EQ(formatWireDate(text), text);
    }
}

TEST_F(WireDate, aFractionThatIsNoNumberOfMillisecondsComesBackUnchanged) {
    EXPECT_EQ(formatWireDate("2014-03-05 17:04:09.999"), "03/05/14 17:04:09");
    for (const char* const text :
         {"2014-03-05 17:04:09.1000", "2014-03-05 17:04:09.250000", "2014-03-05 17:04:09.-1"}) {
        EXPECT_EQ(formatWireDate(text), text);
    }
}

TEST_F(WireDate, aNumberFarTooLargeComesBackUnchanged) {
    EXPECT_EQ(formatWireDate("99999999999999999999-03-05 17:04:09"), "99999999999999999999-03-05 17:04:09");
}

TEST_F(WireDate, aLeapDayIsADate) {
    EXPECT_EQ(formatWireDate("2016-02-29 00:00:00"), "02/29/16 00:00:00");
}

TEST_F(WireDate, blanksBeforeNumbersArePassedOver) {
    EXPECT_EQ(formatWireDate(" 2014- 3- 5   17: 4: 9"), "03/05/14 17:04:09");
}

TEST_F(WireDate, aTextWithoutTheBlankBetweenDateAndTimeIsNotSplit) {
    EXPECT_EQ(formatWireDate("2014-03-0517:04:09"), "2014-03-0517:04:09");
}

TEST_F(WireDate, nobodyNeedsToAskWhetherItIsValid) {
    EXPECT_EQ(formatWireDate("x", nullptr), "x");
}

TEST_F(WireDate, aWideDateIsShownTheSame) {
    EXPECT_EQ(wire::formatWireDateWide(u"2014-03-05 17:04:09"), u"03/05/14 17:04:09");
    EXPECT_EQ(wire::formatWireDateWide(u"n\u00e9ver"), u"n\u00e9ver");
}

TEST_F(WireDate, aLocaleThatIsNotInstalledFallsBackToThePlainOne) {
    const EnvironmentVariable everything("LC_ALL", "xx_XX.nowhere");
    EXPECT_EQ(formatWireDate("2014-03-05 17:04:09"), "03/05/14 17:04:09");
}
