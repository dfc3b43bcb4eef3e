#include "localprinters/LocalPrinterRegionNode.h"

#include "tests/localprinters/LocalPrinterTree.h"

namespace {

using console::DataObjectType;
using console::Result;
using platform::Answer;
using platform::Key;
using support::nodeOf;
using support::rowOf;
using support::shownNode;

constexpr const char16_t* notEmpty = u"Cannot delete as the region includes printers";

class LocalPrinterRegion : public LocalPrinterTree {
protected:
    void showHome() {
        openHome();
        show(console_, *nodeOf(console_, u"Home offices"));
    }
};

TEST_F(LocalPrinterRegion, asksForTheRegionsOfLocalPrintersAndThenForItsPrinters) {
    openHome();

    EXPECT_EQ(estate_.requests(3),
              (Strings{"0: 01 00 00 00 00 00 00", "0: 01 00 00 00 00 00 00", "6: 00 00 01 00 00 00 06 00"}));
}

TEST_F(LocalPrinterRegion, isAnotherThanTheRegionOfPrintersAndQueuesWithTheSameId) {
    openHome();
    expandNode(u"Field service");

    EXPECT_EQ(console_.childNames(rowOf(console_, u"Home offices")), (Names{u"North", u"Shelf", u"Desk"}));
    EXPECT_TRUE(console_.childNames(rowOf(console_, u"Field service")).empty());
}

TEST_F(LocalPrinterRegion, hasAnIconThatChangesWhenItIsOpened) {
    openHome();
    const auto& identity = nodeOf(console_, u"North")->nodeIdentity();

    EXPECT_EQ(identity.image, 0);
    EXPECT_EQ(identity.openImage, 1);
}

TEST_F(LocalPrinterRegion, withSubRegionsButNoPrintersShowsOnlyTheColumnRegionName) {
    estate_.localPrinters.clear();

    showHome();

    EXPECT_EQ(console_.titles(), Names{u"Region Name"});
    EXPECT_EQ(console_.columns.front().width, 200);
    EXPECT_EQ(console_.table(), Table{{u"North"}});
}

TEST_F(LocalPrinterRegion, withPrintersShowsTheirColumns) {
    estate_.localPrinters[0].jobs = 12;
    estate_.localPrinters[0].printingStatus = 4;
    estate_.localPrinters[0].snmpStatus = '4';
    estate_.localPrinters[0].location = u"Attic";
    estate_.localPrinters[0].modelName = u"LC 400";

    showHome();

    EXPECT_EQ(console_.titles(),
              (Names{u"Printer Name", u"Printer Status", u"Jobs In Queue", u"Location", u"SNMP Status", u"Model"}));
    EXPECT_EQ(console_.table(), (Table{{u"North", u"", u"", u"", u"", u""},
                                       {u"Shelf", u"", u"0", u"", u"SNMP status", u""},
                                       {u"Desk", u"Printing", u"12", u"Attic", u"SNMP status", u"LC 400"}}));
}

TEST_F(LocalPrinterRegion, widensTheColumnsOfNameLocationAndModel) {
    showHome();

    std::vector<std::int32_t> widths;
    for (const auto& column : console_.columns) {
        widths.push_back(column.width);
    }
    EXPECT_EQ(widths, (std::vector<std::int32_t>{300, 100, 100, 400, 100, 400}));
}

TEST_F(LocalPrinterRegion, withNothingInItHasNoColumns) {
    expandNode(u"Local Printers");
    expandNode(u"Field service");

    show(console_, *nodeOf(console_, u"Field service"));

    EXPECT_TRUE(console_.columns.empty());
}

TEST_F(LocalPrinterRegion, readsTheServerAgainWhenItIsShown) {
    openHome();
    estate_.localPrinters.push_back(support::printer("l3", 1, u"Cellar"));

    show(console_, *nodeOf(console_, u"Home offices"));

    EXPECT_EQ(console_.table().at(1).front(), u"Cellar");
}

TEST_F(LocalPrinterRegion, offersToCreateAndDeleteARegionWithoutASeparator) {
    openHome();

    EXPECT_EQ(menuOf(console_, *nodeOf(console_, u"North")),
              (Menu{{u"Create region", u"To create a new region", 247, 0},
                    {u"Delete local region", u"To delete region", 302, 0}}));
}

TEST_F(LocalPrinterRegion, offersOnlyRefresh) {
    openHome();

    EXPECT_EQ(verbsOf(console_, *nodeOf(console_, u"North")),
              (Strings{"refresh on", "cut off", "copy off", "delete off", "rename off"}));
}

TEST_F(LocalPrinterRegion, createsASubRegionOfLocalPrintersAndReadsItselfAgain) {
    openHome();
    expectNewRegion(u"A");

    EXPECT_EQ(nodeOf(console_, u"Home offices")->Command(247, DataObjectType::scope), Result::ok);

    EXPECT_EQ(estate_.changes(1), Strings{"1: 01 01 00 00 00 02 00 41 00"});
    EXPECT_EQ(console_.calls, Strings{"SelectScopeItem " + idOf(u"Home offices")});
    EXPECT_EQ(platform_.ui.presses(), Presses{{Key::f5}});
}

// Unlike a region of printers, which presses Tab twice.
TEST_F(LocalPrinterRegion, pressesTabAndF5AfterCreatingASubRegionFromARow) {
    openHome();
    expectNewRegion(u"A");

    nodeOf(console_, u"North")->Command(247, DataObjectType::result);

    EXPECT_TRUE(console_.calls.empty());
    EXPECT_EQ(platform_.ui.presses(), (Presses{{Key::tab, Key::f5}}));
}

// Unlike a region of printers, which presses nothing.
TEST_F(LocalPrinterRegion, readsItselfAgainAfterADialogThatMadeNoRegion) {
    openHome();
    platform_.ui.expect<regions::CreateRegionDlg>(
        [](regions::CreateRegionDlg& dialog) { dialog.cancelButton().userPressed(); });

    EXPECT_EQ(nodeOf(console_, u"Home offices")->Command(247, DataObjectType::scope), Result::notDone);

    EXPECT_EQ(platform_.ui.presses(), Presses{{Key::f5}});
}

TEST_F(LocalPrinterRegion, isDeletedAfterTheQuestionWhenNoPrinterIsInIt) {
    expandNode(u"Local Printers");
    const auto service = nodeOf(console_, u"Field service");
    const auto row = idOf(u"Field service");
    console_.calls.clear();
    platform_.ui.expectBox(Answer::ok, question);

    EXPECT_EQ(service->Command(302, DataObjectType::scope), Result::ok);

    EXPECT_EQ(estate_.changes(1), Strings{"45: 03 00 00 00 01"});
    EXPECT_EQ(console_.calls, (Strings{"DeleteItem " + row + " itself", "SelectScopeItem 1"}));
    EXPECT_EQ(platform_.ui.presses(), Presses{{Key::f5}});
    EXPECT_EQ(platform_.ui.boxes().front().caption, u"Warning");
    EXPECT_EQ(platform_.ui.boxes().front().style, platform::boxStyle::okCancel);
}

TEST_F(LocalPrinterRegion, leavesOnlyTheListWhenItIsDeletedFromThere) {
    expandNode(u"Local Printers");
    show(console_, *root_);
    const auto row = shownNode(console_, u"Field service");
    console_.calls.clear();
    platform_.ui.expectBox(Answer::ok, question);

    row->Command(302, DataObjectType::result);

    EXPECT_EQ(console_.resultRows.size(), 1U);
    EXPECT_EQ(console_.calls.size(), 2U);
    EXPECT_EQ(console_.calls.back(), "SelectScopeItem 1");
    EXPECT_EQ(console_.childNames(rootRow_), (Names{u"Field service", u"Home offices"}));
    EXPECT_EQ(platform_.ui.presses(), Presses{{Key::f5}});
}

TEST_F(LocalPrinterRegion, withAPrinterIsNotDeleted) {
    openHome();
    platform_.ui.expectBox(Answer::ok, question);
    platform_.ui.expectBox(Answer::ok, notEmpty);

    EXPECT_EQ(nodeOf(console_, u"Home offices")->Command(302, DataObjectType::scope), Result::notDone);

    EXPECT_EQ(platform_.ui.boxes().back().caption, u"Information");
    EXPECT_EQ(platform_.ui.boxes().back().style, platform::boxStyle::iconInformation);
    EXPECT_TRUE(estate_.changes(0).empty());
}

TEST_F(LocalPrinterRegion, withOnlyASubRegionIsLeftToTheServer) {
    estate_.localPrinters.clear();
    openHome();
    const auto sent = platform_.commands().size();
    platform_.ui.expectBox(Answer::ok, question);

    EXPECT_EQ(nodeOf(console_, u"Home offices")->Command(302, DataObjectType::scope), Result::ok);

    EXPECT_EQ(estate_.changes(1), Strings{"45: 01 00 00 00 01"});
    EXPECT_EQ(platform_.commands().size(), sent + 2);
}

TEST_F(LocalPrinterRegion, isNotDeletedWhenItsListOfPrintersBreaksOff) {
    expandNode(u"Local Printers");
    estate_.brokenLists = {{6, support::frame({support::dataMessage(support::hex("02 00"))})}};
    platform_.ui.expectBox(Answer::ok, question);
    platform_.ui.expectBox(Answer::ok, notEmpty);

    EXPECT_EQ(nodeOf(console_, u"Field service")->Command(302, DataObjectType::scope), Result::notDone);

    EXPECT_TRUE(estate_.changes(0).empty());
}

TEST_F(LocalPrinterRegion, isRenamedInTheTreeOfLocalPrinters) {
    openHome();

    EXPECT_EQ(rename(console_, *nodeOf(console_, u"North"), u"B"), Result::ok);

    EXPECT_EQ(estate_.changes(1), Strings{"2: 01 02 00 00 00 02 00 42 00"});
    EXPECT_EQ(console_.calls,
              (Strings{"SetItem " + idOf(u"North") + " B", "SelectScopeItem " + idOf(u"Home offices")}));
    EXPECT_EQ(platform_.ui.presses(), Presses{{Key::f5}});
}

TEST_F(LocalPrinterRegion, takesNothingThatIsPasted) {
    openHome();

    EXPECT_EQ(queryPaste(console_, *nodeOf(console_, u"Field service"), *nodeOf(console_, u"North")), Result::notDone);
}

} // namespace
