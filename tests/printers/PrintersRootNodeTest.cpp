#include "printers/PrintersRootNode.h"

#include "regions/CreateRegionDlg.h"
#include "tests/printers/PrinterTree.h"

namespace {

using console::DataObjectType;
using console::Result;
using platform::Key;
using regions::CreateRegionDlg;

class PrintersRoot : public PrinterTree {};

TEST_F(PrintersRoot, holdsTheRegionsOfTheTopLastOfTheListFirst) {
    expandNode(u"Printers");

    EXPECT_EQ(console_.childNames(rootRow_), (Names{u"South", u"North"}));
    EXPECT_EQ(estate_.requests(1), Strings{"0: 00 00 00 00 00 00 00"});
}

TEST_F(PrintersRoot, readsNothingWhenItIsCollapsed) {
    support::expand(console_, *root_, rootRow_, 0);

    EXPECT_TRUE(platform_.commands().empty());
    EXPECT_TRUE(console_.calls.empty());
}

TEST_F(PrintersRoot, listsNoRegionTwiceWhenItIsExpandedAgain) {
    expandNode(u"Printers");
    expandNode(u"Printers");

    EXPECT_EQ(console_.childNames(rootRow_), (Names{u"South", u"North"}));
}

TEST_F(PrintersRoot, showsTheNamesOfTheRegions) {
    expandNode(u"Printers");

    show(console_, *root_);

    EXPECT_EQ(console_.titles(), Names{u"Region Name"});
    EXPECT_EQ(console_.columns.front().width, 200);
    EXPECT_EQ(console_.table(), (Table{{u"South"}, {u"North"}}));
}

TEST_F(PrintersRoot, isEmptyWithItsColumnWhenTheServerHasNoRegions) {
    expandNode(u"Printers");
    estate_.regions.clear();

    expandNode(u"Printers");
    show(console_, *root_);

    EXPECT_TRUE(console_.childNames(rootRow_).empty());
    EXPECT_EQ(console_.titles(), Names{u"Region Name"});
    EXPECT_TRUE(console_.resultRows.empty());
}

TEST_F(PrintersRoot, keepsTheRowsOfRegionsAcrossARefresh) {
    expandNode(u"Printers");
    show(console_, *root_);
    const auto row = console_.resultRows.front().id;
    estate_.regions.insert(estate_.regions.begin(), support::region(9, 0, u"West"));

    refresh(console_, *root_, rootRow_);

    console::ResultItemFields* fields = nullptr;
    support::nodeOf(console_, u"South")->GetResultData(&fields);
    EXPECT_EQ(fields->itemID, console_.resultRows.front().id);
    EXPECT_NE(row, 0);
    support::nodeOf(console_, u"West")->GetResultData(&fields);
    EXPECT_EQ(fields->itemID, 0);
}

TEST_F(PrintersRoot, isLeftEmptyWhenTheServerCannotBeReachedAndShowsTheOldRows) {
    expandNode(u"Printers");
    estate_.goOffline();

    expandNode(u"Printers");
    show(console_, *root_);

    EXPECT_TRUE(console_.childNames(rootRow_).empty());
    EXPECT_EQ(console_.table(), (Table{{u"South"}, {u"North"}}));
    EXPECT_EQ(platform_.failures().size(), 1U);
}

TEST_F(PrintersRoot, offersToCreateARegion) {
    EXPECT_EQ(menuOf(console_, *root_), (Menu{{u"Create region", u"To create a new region", 247, 0}}));
}

TEST_F(PrintersRoot, offersRefreshAndNothingElse) {
    EXPECT_EQ(verbsOf(console_, *root_), (Strings{"refresh on", "cut off", "copy off", "delete off", "rename off"}));
}

TEST_F(PrintersRoot, createsARegionAtTheTopAndReadsTheTreeAgain) {
    expandNode(u"Printers");
    console_.calls.clear();
    platform_.ui.expect<CreateRegionDlg>([](CreateRegionDlg& dialog) {
        dialog.name.userTyped(u"W");
        dialog.okButton().userPressed();
    });

    EXPECT_EQ(root_->Command(247, DataObjectType::scope), Result::ok);

    EXPECT_EQ(estate_.changes(1), Strings{"1: 00 00 00 00 00 02 00 57 00"});
    EXPECT_EQ(console_.calls, Strings{"SelectScopeItem 1"});
    EXPECT_EQ(platform_.ui.presses(), Presses{{Key::f5}});
}

TEST_F(PrintersRoot, createsARegionAlsoBeforeItStandsInAConsole) {
    const auto root = std::make_shared<printers::PrintersRootNode>(platform_);
    platform_.ui.expect<CreateRegionDlg>([](CreateRegionDlg& dialog) {
        dialog.name.userTyped(u"W");
        dialog.okButton().userPressed();
    });

    EXPECT_EQ(root->Command(247, DataObjectType::scope), Result::ok);

    EXPECT_EQ(estate_.changes(1), Strings{"1: 00 00 00 00 00 02 00 57 00"});
    EXPECT_TRUE(platform_.ui.presses().empty());
}

TEST_F(PrintersRoot, readsTheTreeAgainAfterAMoveThatCouldNotBeSent) {
    openNorth();
    const auto harbour = support::nodeOf(console_, u"Harbour");
    estate_.goOffline();

    paste(console_, *root_, *harbour);

    EXPECT_EQ(platform_.ui.presses(), (Presses{{Key::f5, Key::f5}}));
}

TEST_F(PrintersRoot, pressesTabTwiceAfterCreatingARegionFromARow) {
    expandNode(u"Printers");
    console_.calls.clear();
    platform_.ui.expect<CreateRegionDlg>([](CreateRegionDlg& dialog) {
        dialog.name.userTyped(u"W");
        dialog.okButton().userPressed();
    });

    root_->Command(247, DataObjectType::result);

    EXPECT_TRUE(console_.calls.empty());
    EXPECT_EQ(platform_.ui.presses(), (Presses{{Key::tab, Key::tab}}));
}

TEST_F(PrintersRoot, staysAsItIsWhenCreatingARegionIsCancelled) {
    expandNode(u"Printers");
    console_.calls.clear();
    platform_.ui.expect<CreateRegionDlg>([](CreateRegionDlg& dialog) { dialog.cancelButton().userPressed(); });

    EXPECT_EQ(root_->Command(247, DataObjectType::scope), Result::notDone);

    EXPECT_TRUE(console_.calls.empty());
    EXPECT_TRUE(platform_.ui.presses().empty());
}

TEST_F(PrintersRoot, takesRegionsAndNoPrinters) {
    openNorth();

    EXPECT_EQ(queryPaste(console_, *root_, *support::nodeOf(console_, u"Harbour")), Result::ok);
    EXPECT_EQ(queryPaste(console_, *root_, *support::nodeOf(console_, u"Copier")), Result::notDone);
}

TEST_F(PrintersRoot, movesAPastedRegionToTheTop) {
    openNorth();
    watchQueues();

    EXPECT_EQ(paste(console_, *root_, *support::nodeOf(console_, u"Harbour")), Result::ok);

    EXPECT_EQ(estate_.changes(1), Strings{"3: 00 02 00 00 00 00 00 00 00"});
    EXPECT_EQ(std::ranges::count(console_.calls, queuesRefreshed()), 1);
    EXPECT_EQ(platform_.ui.presses(), (Presses{{Key::f5, Key::f5}, {Key::f5, Key::f5}}));
}

TEST_F(PrintersRoot, takesWhatIsPastedFromAViewBeforeTheTreeHasShownIt) {
    const auto root = std::make_shared<printers::PrintersRootNode>(platform_);
    const auto region = std::make_shared<printers::PrinterRegionNode>(platform_, support::region(7, 1, u"Loose"));

    EXPECT_EQ(root->Notify({.event = console::Event::paste, .source = region.get(), .component = &console_}),
              Result::ok);

    EXPECT_EQ(estate_.changes(1), Strings{"3: 00 07 00 00 00 00 00 00 00"});
    EXPECT_EQ(platform_.ui.presses(), (Presses{{Key::f5, Key::f5}, {Key::f5, Key::f5}}));
}

TEST_F(PrintersRoot, doesNotMoveAPastedPrinter) {
    openNorth();

    paste(console_, *root_, *support::nodeOf(console_, u"Copier"));

    EXPECT_TRUE(platform_.ui.presses().empty());
    EXPECT_EQ(platform_.commands().size(), 3U); // the lists for expanding
}

} // namespace
