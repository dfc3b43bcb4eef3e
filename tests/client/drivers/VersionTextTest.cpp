#include "client/drivers/VersionText.h"

#include "tests/support/Environment.h"

#include <gtest/gtest.h>

namespace client {
namespace {

// The plain locale, whose short date is month/day/year in two digits each.
class VersionText : public testing::Test {
    support::EnvironmentVariable everything_{"LC_ALL", "C"};
};

TEST_F(VersionText, aDateBetweenParenthesesAtTheEndBecomesLocal) {
    EXPECT_EQ(localVersionText(u"PCL 6.1 (2014-03-05 17:04:09.250)"), u"PCL 6.1 (03/05/14 17:04:09)");
    EXPECT_EQ(localVersionText(u"PCL 6.1 (2014-03-05 17:04:09)"), u"PCL 6.1 (03/05/14 17:04:09)");
}

TEST_F(VersionText, withoutParenthesesStaysAsItCame) {
    EXPECT_EQ(localVersionText(u"PCL 6.1"), u"PCL 6.1");
    EXPECT_EQ(localVersionText(u""), u"");
    EXPECT_EQ(localVersionText(u"2014-03-05 17:04:09"), u"2014-03-05 17:04:09");
}

TEST_F(VersionText, parenthesesThatHoldNoDateStayAsTheyCame) {
    EXPECT_EQ(localVersionText(u"PCL 6.1 (beta)"), u"PCL 6.1 (beta)");
    EXPECT_EQ(localVersionText(u"PCL 6.1 (2014-03-05)"), u"PCL 6.1 (2014-03-05)");
    EXPECT_EQ(localVersionText(u"PCL ()"), u"PCL ()");
    EXPECT_EQ(localVersionText(u"))(("), u"))((");
}

TEST_F(VersionText, ofTwoDatesBetweenParenthesesOnlyTheLastIsReplaced) {
    EXPECT_EQ(localVersionText(u"A (2013-01-02 03:04:05) B (2014-03-05 17:04:09)"),
              u"A (2013-01-02 03:04:05) B (03/05/14 17:04:09)");
}

TEST_F(VersionText, ofTwoEqualDatesOnlyTheLastIsReplaced) {
    EXPECT_EQ(localVersionText(u"(2014-03-05 17:04:09) (2014-03-05 17:04:09)"),
              u"(2014-03-05 17:04:09) (03/05/14 17:04:09)");
}

TEST_F(VersionText, aDateBeforeOtherTextBetweenParenthesesIsFound) {
    EXPECT_EQ(localVersionText(u"A (2014-03-05 17:04:09) (x64)"), u"A (03/05/14 17:04:09) (x64)");
}

TEST_F(VersionText, aParenthesisThatIsNotClosedEndsWithTheText) {
    EXPECT_EQ(localVersionText(u"A (2014-03-05 17:04:09"), u"A (03/05/14 17:04:09");
}

TEST_F(VersionText, moreThanFourNumbersMakeADateThoughNotEachCanBeShown) {
    EXPECT_EQ(localVersionText(u"A (2013-01-02 03:04:05) (2014-03-05 17:04)"),
              u"A (2013-01-02 03:04:05) (2014-03-05 17:04)");
}

TEST_F(VersionText, theRestOfTheTextIsLeftAloneWhateverItHolds) {
    const wire::WideString odd{u'Ä', 0xD83D, u' '};
    EXPECT_EQ(localVersionText(odd + u"(2014-03-05 17:04:09)"), odd + u"(03/05/14 17:04:09)");
}

} // namespace
} // namespace client
