#include "printers/PrinterPreferencesDlg.h"
#include "printers/PrinterRegionNode.h"
#include "regions/RegionRulesDlg.h"
#include "tests/printers/PrinterTree.h"
#include "tests/support/Bytes.h"

namespace {

using console::DataObjectType;
using console::Result;
using platform::Answer;
using platform::Key;
using support::nodeOf;

// The dialogs that a region of printers opens.
class RegionCommands : public PrinterTree {};

TEST_F(RegionCommands, addAPrinterAndRefreshTheQueuesAndTheRegion) {
    openNorth();
    watchQueues();
    platform_.ui.expect<printers::PrinterPreferencesDlg>([](printers::PrinterPreferencesDlg& dialog) {
        EXPECT_EQ(dialog.title(), u"New Printer");
        EXPECT_EQ(dialog.region.text(), u"Harbour");
        dialog.cancelButton().userPressed();
    });

    EXPECT_EQ(nodeOf(console_, u"Harbour")->Command(103, DataObjectType::scope), Result::notDone);

    EXPECT_EQ(std::ranges::count(console_.calls, queuesRefreshed()), 1);
    EXPECT_EQ(console_.calls.back(), "SelectScopeItem " + idOf(u"Harbour"));
    EXPECT_EQ(platform_.ui.presses(), Presses{{Key::f5}});
}

TEST_F(RegionCommands, takeNoPrinterIntoARegionWithoutANumber) {
    const auto region = std::make_shared<printers::PrinterRegionNode>(platform_, support::region(0, 0, u"Loose"));
    platform_.ui.expectBox(Answer::ok, u"New Region Id Not Found");

    EXPECT_EQ(region->Command(103, DataObjectType::scope), Result::notDone);

    EXPECT_EQ(platform_.ui.boxes().back().caption, u"Warning");
    EXPECT_EQ(platform_.ui.boxes().back().style, platform::boxStyle::iconWarning);
    EXPECT_TRUE(platform_.ui.forms().empty());
}

TEST_F(RegionCommands, doNothingForAMigrationPlanYet) {
    openNorth();

    EXPECT_EQ(nodeOf(console_, u"North")->Command(309, DataObjectType::scope), Result::notDone);

    EXPECT_TRUE(platform_.ui.forms().empty());
}

TEST_F(RegionCommands, showTheRulesOfARegionByItsNumberAndPressNothing) {
    openNorth();
    estate_.lists[61] = [](const support::Bytes&) { return std::vector<support::Bytes>(); };
    platform_.ui.expect<regions::RegionRulesDlg>(
        [](regions::RegionRulesDlg& dialog) { dialog.okButton().userPressed(); });

    EXPECT_EQ(nodeOf(console_, u"Harbour")->Command(261, DataObjectType::scope), Result::ok);

    EXPECT_EQ(estate_.requests(4).back(), "61: 00 00 02 00 00 00");
    EXPECT_TRUE(platform_.ui.presses().empty());
}

} // namespace
