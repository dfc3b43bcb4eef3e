#include "wire/WireDate.h"
#include "tests/support/Environment.h"

#include <gtest/gtest.h>

using support::EnvironmentVariable;
using wire::formatWireDate;
using wire::wireDateOrder;

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

TEST_F(WireDate, standsInTheOrderOfTimeWhereTheShownTextsDoNot) {
    const std::string sooner = "2025-12-01 10:00:00";
    const std::string later = "2026-03-14 10:00:00";
    const std::string latest = "2027-01-02 10:00:00";

    EXPECT_LT(wireDateOrder(sooner), wireDateOrder(later));
    EXPECT_LT(wireDateOrder(later), wireDateOrder(latest));
    EXPECT_LT(formatWireDate(latest), formatWireDate(later));
}

TEST_F(WireDate, everyUnitDownToTheMillisecondCountsForTheOrder) {
    const std::vector<std::string> inOrder{
        "1601-01-01 00:00:00", "1969-12-31 23:59:59",     "1970-01-01 00:00:00",     "2016-02-28 23:59:59",
        "2016-02-29 00:00:00", "2016-03-01 00:00:00",     "2016-03-01 00:00:01",     "2016-03-01 00:01:00",
        "2016-03-01 01:00:00", "2016-03-01 01:00:00.250", "2016-03-01 01:00:00.999", "30827-12-31 23:59:59"};
    for (std::size_t index = 1; index < inOrder.size(); ++index) {
        EXPECT_LT(wireDateOrder(inOrder[index - 1]), wireDateOrder(inOrder[index])) << inOrder[index];
    }
}

TEST_F(WireDate, theOrderIsTheSameForTheSameTimeInAnotherWriting) {
    EXPECT_EQ(wireDateOrder(" 2014- 3- 5   17: 4: 9"), wireDateOrder("2014-03-05 17:04:09.000"));
    EXPECT_EQ(wireDateOrder(u"2014-03-05 17:04:09"), wireDateOrder("2014-03-05 17:04:09"));
}

TEST_F(WireDate, theOrderIsThatOfTheServersTextInEveryLocale) {
    const auto plain = wireDateOrder("2014-03-05 17:04:09");
    const EnvironmentVariable everything("LC_ALL", "sv_SE.UTF-8");
    EXPECT_EQ(wireDateOrder("2014-03-05 17:04:09"), plain);
}

TEST_F(WireDate, whatIsShownAsItCameStandsBeforeAllDatesAtOnePlace) {
    const auto none = wireDateOrder("");
    EXPECT_LT(none, wireDateOrder("1601-01-01 00:00:00"));
    for (const char* const text : {"never", "2014-03-05 17:04", "2014-02-29 17:04:09", "2014-03-05 24:04:09",
                                   "2014-03-05 17:04:09.1000", "1600-12-31 00:00:00", "30828-01-01 00:00:00"}) {
        EXPECT_EQ(wireDateOrder(std::string(text)), none) << text;
    }
    EXPECT_EQ(wireDateOrder(u"n\u00e9ver"), none);
}

TEST_F(WireDate, aLocaleThatIsNotInstalledFallsBackToThePlainOne) {
    const EnvironmentVariable everything("LC_ALL", "xx_XX.nowhere");
    EXPECT_EQ(formatWireDate("2014-03-05 17:04:09"), "03/05/14 17:04:09");
}
