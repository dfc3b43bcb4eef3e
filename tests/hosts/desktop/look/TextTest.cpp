#include "hosts/desktop/look/Text.h"

#include "hosts/desktop/activity/WaitIndicator.h"
#include "hosts/desktop/tree/TreePath.h"
#include "hosts/desktop/window/StatusLine.h"

#include <gtest/gtest.h>

namespace desktoptest {
namespace {

using namespace std::chrono_literals;

TEST(Text, anOrdinaryTextIsShownAsItStands) {
    EXPECT_EQ(QStringLiteral("München <1>"), desktop::oneLine(u"München <1>"));
}

TEST(Text, aLongTextIsCutBetweenCharacters) {
    const wire::WideString text = wire::WideString(399, u'a') + u"\U0001F5A8" + u"b";
    const QString shown = desktop::oneLine(text);
    EXPECT_EQ(QString(399, QLatin1Char('a')) + QChar(0x2026), shown);
}

TEST(Text, aToolTipNeverTakesATextForMarkup) {
    EXPECT_EQ(QStringLiteral("<p style=\"white-space:pre-wrap\">&lt;b&gt;x&lt;/b&gt;</p>"),
              desktop::plainToolTip(QStringLiteral("<b>x</b>")));
}

TEST(Text, anEndlessToolTipIsCut) {
    EXPECT_LT(desktop::plainToolTip(QString(65'535, QLatin1Char('x'))).size(), 2'100);
}

TEST(Text, aPathIsCutAtItsSlashes) {
    const auto names = desktop::namesInPath(QStringLiteral("Printers/A\\/B/C\\\\D/"));
    ASSERT_TRUE(names.has_value());
    EXPECT_EQ((std::vector<QString>{"Printers", "A/B", "C\\D"}), *names);
}

TEST(Text, aPathWithAnEmptyNameOrAStrayBackslashIsNone) {
    EXPECT_FALSE(desktop::namesInPath(QStringLiteral("Printers//A")).has_value());
    EXPECT_FALSE(desktop::namesInPath(QStringLiteral("Printers\\x")).has_value());
    EXPECT_FALSE(desktop::namesInPath(QStringLiteral("Printers\\")).has_value());
}

TEST(Text, rowsAreCountedWithWhatTheFilterHides) {
    EXPECT_EQ(QStringLiteral("1 row"), desktop::StatusLine::countText(1, 1));
    EXPECT_EQ(QStringLiteral("0 rows"), desktop::StatusLine::countText(0, 0));
    EXPECT_EQ(QStringLiteral("5 of 120 rows"), desktop::StatusLine::countText(5, 120));
}

TEST(Text, aWaitSaysWhatItWaitsForAndHowFarItIs) {
    EXPECT_EQ(QStringLiteral("List printer records (region 7): 12 records, 3 s"),
              desktop::WaitIndicator::describe(QStringLiteral("ListPrinterRecords"), QStringLiteral("region 7"), 12,
                                               3'400ms));
    EXPECT_EQ(QStringLiteral("Login: 0 s"),
              desktop::WaitIndicator::describe(QStringLiteral("Login"), QString(), 0, 600ms));
}

} // namespace
} // namespace desktoptest
