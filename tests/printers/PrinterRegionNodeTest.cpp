#include "printers/PrinterRegionNode.h"

#include "regions/CreateRegionDlg.h"
#include "tests/printers/PrinterTree.h"

namespace {

using console::DataObjectType;
using console::Result;
using platform::Answer;
using platform::Key;
using regions::CreateRegionDlg;
using support::nodeOf;
using support::rowOf;
using support::shownNode;

class PrinterRegion : public PrinterTree {
protected:
    // What the user does in the dialog of a new region.
    void expectNewRegion(const char16_t* name, std::int32_t newRegionId = 0) {
        platform_.ui.expect<CreateRegionDlg>([name, newRegionId](CreateRegionDlg& dialog) {
            dialog.name.userTyped(name);
            dialog.newRegionId = newRegionId;
            dialog.okButton().userPressed();
        });
    }

    void showNorth() {
        openNorth();
        show(console_, *nodeOf(console_, u"North"));
        console_.calls.clear();
    }
};

constexpr const char16_t* deleteQuestion = u"Are you sure you want to delete the selected region? ";
constexpr const char16_t* notEmpty =
    u"Cannot delete as the region includes Printers or Follow Printer Queue or Sub Regions!";

TEST_F(PrinterRegion, asksForItsPrintersAndThenForTheRegions) {
    openNorth();

    EXPECT_EQ(estate_.requests(3),
              (Strings{"0: 00 00 00 00 00 00 00", "6: 00 00 01 00 00 00 00 00", "0: 00 00 00 00 00 00 00"}));
}

TEST_F(PrinterRegion, holdsRegionsBeforePrintersEachLastOfTheListFirst) {
    estate_.regions.push_back(support::region(4, 1, u"Airport"));

    openNorth();

    EXPECT_EQ(console_.childNames(rowOf(console_, u"North")), (Names{u"Airport", u"Harbour", u"Plotter", u"Copier"}));
}

TEST_F(PrinterRegion, hasAnIconThatChangesWhenItIsOpened) {
    expandNode(u"Printers");
    console::ScopeItemFields* fields = nullptr;

    nodeOf(console_, u"North")->GetScopeData(&fields);

    EXPECT_EQ(fields->nImage, 0);
    EXPECT_EQ(fields->nOpenImage, 1);
    EXPECT_EQ(fields->cChildren, 2);
}

TEST_F(PrinterRegion, withSubRegionsButNoPrintersShowsOnlyTheColumnRegionName) {
    estate_.printers.clear();

    showNorth();

    EXPECT_EQ(console_.titles(), Names{u"Region Name"});
    EXPECT_EQ(console_.columns.front().width, 200);
    EXPECT_EQ(console_.table(), Table{{u"Harbour"}});
}

TEST_F(PrinterRegion, withBothShowsThePrinterColumnsWithRegionsAsRowsInThem) {
    estate_.printers[0].modelName = u"LC 400";
    estate_.printers[0].location = u"Quay 3";
    estate_.printers[0].snmpStatus = 4;
    estate_.printers[0].printingStatus = 3;
    estate_.printers[0].jobs = 12;

    showNorth();

    EXPECT_EQ(console_.titles(),
              (Names{u"Printer Name", u"Model", u"Location", u"SNMP Status", u"Printer Status", u"Jobs In Queue"}));
    EXPECT_EQ(console_.table(),
              (Table{{u"Harbour", u"", u"", u"", u"", u""},
                     {u"Plotter", u"", u"", u"SNMP status", u"", u"0"},
                     {u"Copier", u"LC 400", u"Quay 3", u"ERROR:No Paper", u"Client Connecting Printer", u"12"}}));
}

TEST_F(PrinterRegion, widensTheFirstFourColumnsOfPrinters) {
    showNorth();

    std::vector<std::int32_t> widths;
    for (const auto& column : console_.columns) {
        widths.push_back(column.width);
    }
    EXPECT_EQ(widths, (std::vector<std::int32_t>{200, 400, 300, 150, 100, 100}));
}

TEST_F(PrinterRegion, withNothingInItHasNoColumns) {
    expandNode(u"Printers");
    expandNode(u"South");

    show(console_, *nodeOf(console_, u"South"));

    EXPECT_TRUE(console_.columns.empty());
    EXPECT_TRUE(console_.resultRows.empty());
}

TEST_F(PrinterRegion, showsWhatStandsOnTheServerWhenItIsShown) {
    openNorth();
    estate_.printers.push_back(support::printer("p3", 1, u"Scanner"));

    show(console_, *nodeOf(console_, u"North"));

    EXPECT_EQ(console_.table().at(1).front(), u"Scanner");
}

TEST_F(PrinterRegion, readsTheServerAgainAlsoWhenItIsHidden) {
    showNorth();

    show(console_, *nodeOf(console_, u"North"), false);

    EXPECT_EQ(estate_.requests(7).size(), 7U);
    EXPECT_TRUE(console_.calls.empty());
}

TEST_F(PrinterRegion, keepsTheTreeRowsOfItsChildrenWhenItIsShown) {
    openNorth();
    const auto row = rowOf(console_, u"Copier");

    show(console_, *nodeOf(console_, u"North"));

    console::ScopeItemFields* fields = nullptr;
    shownNode(console_, u"Copier")->GetScopeData(&fields);
    EXPECT_EQ(fields->ID, row);
    EXPECT_EQ(fields->relativeID, rowOf(console_, u"North"));
    shownNode(console_, u"Harbour")->GetScopeData(&fields);
    EXPECT_EQ(fields->ID, rowOf(console_, u"Harbour"));
}

TEST_F(PrinterRegion, losesItsRowsWhenAllThatItHeldHasGone) {
    showNorth();
    estate_.printers.clear();
    estate_.regions = {support::region(1, 0, u"North")};

    refresh(console_, *nodeOf(console_, u"North"), rowOf(console_, u"North"));

    EXPECT_TRUE(console_.resultRows.empty());
    EXPECT_TRUE(console_.childNames(rowOf(console_, u"North")).empty());
}

TEST_F(PrinterRegion, withNothingInItLeavesTheListAloneWhenItIsHidden) {
    expandNode(u"Printers");
    show(console_, *root_);

    show(console_, *nodeOf(console_, u"South"), false);

    EXPECT_EQ(console_.resultRows.size(), 2U);
}

TEST_F(PrinterRegion, showsTheRowsOfTheLastReadWhenTheServerCannotBeReached) {
    showNorth();
    estate_.goOffline();

    show(console_, *nodeOf(console_, u"North"));

    EXPECT_EQ(console_.resultRows.size(), 3U);
}

TEST_F(PrinterRegion, showsItsRegionsThoughItsPrintersCouldNotBeRead) {
    openNorth();
    estate_.regions.push_back(support::region(4, 1, u"Airport"));
    estate_.brokenLists = {{6, support::frame({support::dataMessage(support::hex("02 00"))})}};
    const auto north = nodeOf(console_, u"North");

    EXPECT_EQ(expandNode(u"North"), Result::failed);

    EXPECT_EQ(console_.childNames(rowOf(console_, u"North")), (Names{u"Airport", u"Harbour"}));
    show(console_, *north);
    EXPECT_EQ(console_.resultRows.size(), 4U) << "with the printers of before";
}

TEST_F(PrinterRegion, keepsTheRowOfARenamedPrinterAcrossARefresh) {
    showNorth();
    const auto row = console_.resultRows.at(2).id;
    estate_.printers[0].name = u"Renamed";

    refresh(console_, *nodeOf(console_, u"North"), rowOf(console_, u"North"));

    console::ResultItemFields* fields = nullptr;
    nodeOf(console_, u"Renamed")->GetResultData(&fields);
    EXPECT_NE(fields->itemID, 0);
    EXPECT_EQ(fields->itemID, console_.resultRows.at(2).id);
    EXPECT_NE(row, 0);
    EXPECT_EQ(fields->lParam, nodeOf(console_, u"Renamed").get());
}

TEST_F(PrinterRegion, offersItsCommandsInOrder) {
    expandNode(u"Printers");

    EXPECT_EQ(menuOf(console_, *nodeOf(console_, u"North")),
              (Menu{{u"Create region", u"To create a new region", 247, 0},
                    {u"", u"", 0, 0x800},
                    {u"Add New Printer", u"To add new printer", 103, 0},
                    {u"", u"", 0, 0x800},
                    {u"Delete region", u"To delete region", 302, 0},
                    {u"", u"", 0, 0x800},
                    {u"Region Rules", u"For region rules", 261, 0}}));
}

TEST_F(PrinterRegion, setsItsVerbsInOrder) {
    expandNode(u"Printers");

    EXPECT_EQ(verbsOf(console_, *nodeOf(console_, u"North")),
              (Strings{"refresh on", "cut on", "copy off", "delete off", "rename on", "paste on"}));
}

TEST_F(PrinterRegion, createsASubRegionAndReadsItselfAgain) {
    openNorth();
    expectNewRegion(u"A");

    EXPECT_EQ(nodeOf(console_, u"North")->Command(247, DataObjectType::scope), Result::ok);

    EXPECT_EQ(estate_.changes(1), Strings{"1: 00 01 00 00 00 02 00 41 00"});
    EXPECT_EQ(console_.calls, Strings{"SelectScopeItem " + idOf(u"North")});
    EXPECT_EQ(platform_.ui.presses(), Presses{{Key::f5}});
}

TEST_F(PrinterRegion, insertsASubRegionWhoseIdIsKnownAndSelectsIt) {
    openNorth();
    expectNewRegion(u"Airport", 42);

    nodeOf(console_, u"North")->Command(247, DataObjectType::scope);

    EXPECT_EQ(console_.calls,
              (Strings{"InsertItem Airport under " + idOf(u"North"), "SelectScopeItem " + idOf(u"Airport")}));
    EXPECT_EQ(nodeOf(console_, u"Airport")->refreshKey(), "region 42");
    EXPECT_TRUE(platform_.ui.presses().empty());
}

TEST_F(PrinterRegion, pressesTabTwiceAfterCreatingASubRegionFromARow) {
    openNorth();
    expectNewRegion(u"A");

    nodeOf(console_, u"Harbour")->Command(247, DataObjectType::result);

    EXPECT_EQ(estate_.changes(1), Strings{"1: 00 02 00 00 00 02 00 41 00"});
    EXPECT_TRUE(console_.calls.empty());
    EXPECT_EQ(platform_.ui.presses(), (Presses{{Key::tab, Key::tab}}));
}

TEST_F(PrinterRegion, listsASubRegionWhoseIdIsKnownBeforeItIsReadAgain) {
    openNorth();
    expectNewRegion(u"Airport", 42);
    const auto north = nodeOf(console_, u"North");
    north->Command(247, DataObjectType::scope);
    estate_.goOffline();

    show(console_, *north);

    EXPECT_EQ(console_.resultRows.size(), 4U);
    EXPECT_NE(shownNode(console_, u"Airport"), nullptr);
}

TEST_F(PrinterRegion, thatStandsInNoConsoleStillDoesItsCommands) {
    const auto region = std::make_shared<printers::PrinterRegionNode>(platform_, support::region(7, 0, u"Loose"));
    expectNewRegion(u"A", 42);
    platform_.ui.expectBox(Answer::ok, deleteQuestion);

    EXPECT_EQ(region->Command(247, DataObjectType::scope), Result::ok);
    EXPECT_EQ(region->Command(302, DataObjectType::scope), Result::ok);

    EXPECT_EQ(estate_.changes(2), (Strings{"1: 00 07 00 00 00 02 00 41 00", "45: 07 00 00 00 00"}));
    EXPECT_TRUE(platform_.ui.presses().empty());
}

TEST_F(PrinterRegion, isDeletedAfterTheQuestionWhenNothingIsInIt) {
    expandNode(u"Printers");
    const auto south = nodeOf(console_, u"South");
    const auto row = idOf(u"South");
    console_.calls.clear();
    platform_.ui.expectBox(Answer::ok, deleteQuestion);

    EXPECT_EQ(south->Command(302, DataObjectType::scope), Result::ok);

    EXPECT_EQ(estate_.changes(1), Strings{"45: 03 00 00 00 00"});
    EXPECT_EQ(console_.calls, (Strings{"DeleteItem " + row + " itself", "SelectScopeItem 1"}));
    EXPECT_EQ(platform_.ui.presses(), Presses{{Key::f5}});
    EXPECT_EQ(platform_.ui.boxes().front().caption, u"Warning");
    EXPECT_EQ(platform_.ui.boxes().front().style, platform::boxStyle::okCancel);
}

TEST_F(PrinterRegion, leavesTheListOfItsParentWhenItIsDeletedFromThere) {
    expandNode(u"Printers");
    show(console_, *root_);
    console_.calls.clear();
    platform_.ui.expectBox(Answer::ok, deleteQuestion);

    shownNode(console_, u"South")->Command(302, DataObjectType::result);

    EXPECT_EQ(console_.resultRows.size(), 1U);
    EXPECT_EQ(console_.calls.size(), 3U);
}

TEST_F(PrinterRegion, staysWhenTheQuestionIsAnsweredWithCancel) {
    expandNode(u"Printers");
    const auto commands = platform_.commands().size();
    platform_.ui.expectBox(Answer::cancel, deleteQuestion);

    EXPECT_EQ(nodeOf(console_, u"South")->Command(302, DataObjectType::scope), Result::notDone);

    EXPECT_EQ(platform_.commands().size(), commands);
    EXPECT_TRUE(platform_.ui.presses().empty());
}

TEST_F(PrinterRegion, thatHoldsOnlyAnEmptySubRegionIsNotDeletedAndNoDeleteIsSent) {
    estate_.printers.clear();
    openNorth();
    platform_.ui.expectBox(Answer::ok, deleteQuestion);
    platform_.ui.expectBox(Answer::ok, notEmpty);

    EXPECT_EQ(nodeOf(console_, u"North")->Command(302, DataObjectType::scope), Result::notDone);

    EXPECT_EQ(platform_.ui.boxes().back().caption, u"Information");
    EXPECT_EQ(platform_.ui.boxes().back().style, platform::boxStyle::iconInformation);
    EXPECT_EQ(estate_.requests(6).back(), "0: 00 00 00 00 00 00 00");
    EXPECT_EQ(platform_.commands().size(), 6U); // three lists for expanding, three for the check
    EXPECT_TRUE(console_.calls.empty());
}

TEST_F(PrinterRegion, thatHoldsAFollowPrintQueueIsNotDeleted) {
    estate_.followQueues = {support::printer("f1", 3, u"Anywhere")};
    expandNode(u"Printers");
    platform_.ui.expectBox(Answer::ok, deleteQuestion);
    platform_.ui.expectBox(Answer::ok, notEmpty);

    EXPECT_EQ(nodeOf(console_, u"South")->Command(302, DataObjectType::scope), Result::notDone);
}

TEST_F(PrinterRegion, isNotDeletedWhenItsListOfPrintersBreaksOff) {
    expandNode(u"Printers");
    estate_.brokenLists = {{6, support::frame({support::dataMessage(support::hex("02 00"))})}};
    platform_.ui.expectBox(Answer::ok, deleteQuestion);
    platform_.ui.expectBox(Answer::ok, notEmpty);

    EXPECT_EQ(nodeOf(console_, u"South")->Command(302, DataObjectType::scope), Result::notDone);

    EXPECT_TRUE(estate_.changes(0).empty());
}

TEST_F(PrinterRegion, staysInTheTreeWhenTheDeleteCannotBeSent) {
    expandNode(u"Printers");
    estate_.goOffline();
    console_.calls.clear();
    platform_.ui.expectBox(Answer::ok, deleteQuestion);

    EXPECT_EQ(nodeOf(console_, u"South")->Command(302, DataObjectType::scope), Result::notDone);

    EXPECT_TRUE(console_.calls.empty());
    EXPECT_TRUE(platform_.ui.presses().empty());
}

TEST_F(PrinterRegion, takesItsNewNameAtOnceAndReadsItsParentAgain) {
    openNorth();

    EXPECT_EQ(rename(console_, *nodeOf(console_, u"Harbour"), u"B"), Result::ok);

    EXPECT_EQ(estate_.changes(1), Strings{"2: 00 02 00 00 00 02 00 42 00"});
    EXPECT_EQ(console_.calls, (Strings{"SetItem " + idOf(u"Harbour") + " B", "SelectScopeItem " + idOf(u"North")}));
    EXPECT_EQ(platform_.ui.presses(), Presses{{Key::f5}});
}

TEST_F(PrinterRegion, keepsItsNameWhenTheRenameCannotBeSent) {
    openNorth();
    estate_.goOffline();

    EXPECT_EQ(rename(console_, *nodeOf(console_, u"Harbour"), u"B"), Result::notDone);

    EXPECT_EQ(console_.calls.back(), "SetItem " + idOf(u"Harbour") + " Harbour");
    EXPECT_EQ(nodeOf(console_, u"Harbour")->displayName(), u"Harbour");
    EXPECT_TRUE(platform_.ui.presses().empty());
}

TEST_F(PrinterRegion, takesPrintersAndRegionsAndNothingElse) {
    openNorth();
    const auto south = nodeOf(console_, u"South");

    EXPECT_EQ(queryPaste(console_, *south, *nodeOf(console_, u"Copier")), Result::ok);
    EXPECT_EQ(queryPaste(console_, *south, *nodeOf(console_, u"North")), Result::ok);
    EXPECT_EQ(queryPaste(console_, *south, *queues_), Result::notDone);
}

TEST_F(PrinterRegion, movesAPastedPrinterIntoItself) {
    openNorth();
    watchQueues();

    EXPECT_EQ(paste(console_, *nodeOf(console_, u"South"), *nodeOf(console_, u"Copier")), Result::ok);

    EXPECT_EQ(estate_.changes(1), Strings{"21: 02 00 70 31 03 00 00 00"});
    EXPECT_EQ(std::ranges::count(console_.calls, queuesRefreshed()), 1);
    EXPECT_EQ(platform_.ui.presses(), (Presses{{Key::f5, Key::f5}, {Key::f5, Key::f5}}));
}

TEST_F(PrinterRegion, movesAPastedRegionBelowItself) {
    openNorth();

    paste(console_, *nodeOf(console_, u"South"), *nodeOf(console_, u"North"));

    EXPECT_EQ(estate_.changes(1), Strings{"3: 00 01 00 00 00 03 00 00 00"});
    EXPECT_EQ(platform_.ui.presses(), (Presses{{Key::f5, Key::f5}, {Key::f5, Key::f5}}));
}

TEST_F(PrinterRegion, leavesItToTheServerWhetherARegionMayGoBelowItsOwnSubRegion) {
    openNorth();
    const auto harbour = nodeOf(console_, u"Harbour");
    const auto north = nodeOf(console_, u"North");

    EXPECT_EQ(queryPaste(console_, *harbour, *north), Result::ok);
    paste(console_, *harbour, *north);

    EXPECT_EQ(estate_.changes(1), Strings{"3: 00 01 00 00 00 02 00 00 00"});
}

TEST_F(PrinterRegion, takesWhatIsPastedFromAViewBeforeTheTreeHasShownIt) {
    const auto region = std::make_shared<printers::PrinterRegionNode>(platform_, support::region(7, 0, u"Loose"));
    const auto printer = std::make_shared<printers::PrinterNode>(platform_, support::printer("p1", 1, u"Copier"));

    EXPECT_EQ(region->Notify({.event = console::Event::paste, .source = printer.get(), .component = &console_}),
              Result::ok);

    EXPECT_EQ(estate_.changes(1), Strings{"21: 02 00 70 31 07 00 00 00"});
    EXPECT_EQ(platform_.ui.presses(), (Presses{{Key::f5, Key::f5}, {Key::f5, Key::f5}}));
}

TEST_F(PrinterRegion, readsTheTreeAgainAfterAMoveThatCouldNotBeSent) {
    openNorth();
    const auto south = nodeOf(console_, u"South");
    const auto copier = nodeOf(console_, u"Copier");
    estate_.goOffline();

    paste(console_, *south, *copier);

    EXPECT_EQ(platform_.ui.presses(), (Presses{{Key::f5, Key::f5}}));
}

TEST_F(PrinterRegion, holdsTenThousandPrinters) {
    estate_.printers.clear();
    for (int i = 0; i < 10000; ++i) {
        estate_.printers.push_back(support::printer("p" + std::to_string(i), 1, u"Printer"));
    }

    openNorth();
    show(console_, *nodeOf(console_, u"North"));

    EXPECT_EQ(console_.children(rowOf(console_, u"North")).size(), 10001U);
    EXPECT_EQ(console_.resultRows.size(), 10001U);
}

} // namespace
