#include "queues/QueueRegionNode.h"

#include "queues/AddQueueDlg.h"
#include "regions/CreateRegionDlg.h"
#include "regions/RegionRulesDlg.h"
#include "tests/queues/QueueTrees.h"

namespace {

using console::DataObjectType;
using console::Result;
using platform::Answer;
using platform::Key;
using queues::QueueMode;
using queues::QueueRegionNode;
using regions::CreateRegionDlg;
using support::nodeOf;
using support::rowOf;

constexpr const char16_t* deleteQuestion = u"Are you sure you want to delete the selected region? ";
constexpr const char16_t* notEmpty =
    u"Cannot delete as the region includes Printers or Follow Printer Queue or Sub Regions!";

class QueueRegion : public QueueTrees {};

TEST_F(QueueRegion, asksForTheRegionsAndThenForItsQueues) {
    openNorth();

    EXPECT_EQ(estate_.requests(3),
              (Strings{"0: 00 00 00 00 00 00 00", "0: 00 00 00 00 00 00 00", "6: 00 00 01 00 00 00 01 00"}));
}

TEST_F(QueueRegion, ofFollowPrintAsksForTheRegionsAndThenForItsFollowPrintQueues) {
    openFollowNorth();

    EXPECT_EQ(estate_.requests(3),
              (Strings{"0: 00 00 00 00 00 00 00", "0: 00 00 00 00 00 00 00", "6: 00 00 01 00 00 00 03 00"}));
}

TEST_F(QueueRegion, holdsRegionsBeforeQueuesEachLastOfTheListFirst) {
    openNorth();
    openFollowNorth();

    EXPECT_EQ(console_.childNames(rowOf(console_, u"North")), (Names{u"Harbour", u"Office", u"Lobby"}));
    EXPECT_EQ(followConsole_.childNames(rowOf(followConsole_, u"North")), (Names{u"Harbour", u"Anywhere"}));
}

TEST_F(QueueRegion, passesItsModeOnToItsQueuesAndSubRegions) {
    estate_.followQueues.push_back(support::printer("f2", 2, u"Quay"));
    openFollowNorth();
    expandIn(followConsole_, u"Harbour");

    EXPECT_EQ(menuOf(followConsole_, *nodeOf(followConsole_, u"Quay")).back().text, u"Delete Follow Print Queue");
    EXPECT_EQ(menuOf(followConsole_, *nodeOf(followConsole_, u"Anywhere")).back().text, u"Delete Follow Print Queue");
}

TEST_F(QueueRegion, hasAnIconThatChangesWhenItIsOpened) {
    const QueueRegionNode node(platform_, support::region(1, 0, u"North"), QueueMode::queue);

    EXPECT_EQ(node.nodeIdentity().image, 0);
    EXPECT_EQ(node.nodeIdentity().openImage, 1);
    EXPECT_EQ(node.nodeIdentity().children, 2);
}

TEST_F(QueueRegion, withSubRegionsAndNoQueuesShowsOnlyTheColumnRegionName) {
    estate_.queues.clear();

    showNorth();

    EXPECT_EQ(console_.titles(), Names{u"Region Name"});
    EXPECT_EQ(console_.columns.front().width, 200);
    EXPECT_EQ(console_.table(), Table{{u"Harbour"}});
}

// The status is in the column of the region, and the columns of region, location and status are never filled; this must
// stay.
TEST_F(QueueRegion, withQueuesShowsTheStatusInTheThirdColumnAndNothingBehindIt) {
    estate_.queues[0].jobs = 12;
    estate_.queues[0].printingStatus = 3;
    estate_.queues[0].location = u"Ground floor";

    showNorth();

    EXPECT_EQ(console_.titles(), (Names{u"Queue", u"Jobs", u"Region", u"Location", u"Status"}));
    EXPECT_EQ(console_.table(), (Table{{u"Harbour", u"", u"", u"", u""},
                                       {u"Office", u"0", u"", u"", u""},
                                       {u"Lobby", u"12", u"Client Connecting Printer", u"", u""}}));
}

TEST_F(QueueRegion, leavesTheColumnsOfQueuesAsWideAsTheyCome) {
    showNorth();

    for (const auto& column : console_.columns) {
        EXPECT_EQ(column.width, console_.automaticColumnWidth) << wire::toUtf8(column.title);
    }
}

// Unlike a region of printers.
TEST_F(QueueRegion, withNothingInItHasTheColumnsOfQueues) {
    expandIn(console_, u"Queues");
    expandIn(console_, u"South");

    show(console_, *nodeOf(console_, u"South"));

    EXPECT_EQ(console_.titles(), (Names{u"Queue", u"Jobs", u"Region", u"Location", u"Status"}));
    EXPECT_TRUE(console_.resultRows.empty());
}

TEST_F(QueueRegion, readsTheServerAgainWhenItIsShownAndWhenItIsHidden) {
    openNorth();
    estate_.queues.push_back(support::printer("q3", 1, u"Studio"));

    show(console_, *nodeOf(console_, u"North"));
    show(console_, *nodeOf(console_, u"North"), false);

    EXPECT_EQ(console_.table().at(1).front(), u"Studio");
    EXPECT_EQ(estate_.requests(7).size(), 7U);
}

TEST_F(QueueRegion, keepsTheRowsOfItsQueuesAcrossARefresh) {
    showNorth();
    const auto row = console_.resultRows.at(1).id;

    refresh(console_, *nodeOf(console_, u"North"), rowOf(console_, u"North"));

    console::ResultItemFields* fields = nullptr;
    nodeOf(console_, u"Office")->GetResultData(&fields);
    EXPECT_EQ(fields->itemID, console_.resultRows.at(1).id);
    EXPECT_NE(row, 0);
}

TEST_F(QueueRegion, offersToCreateAndDeleteARegionAndItsRules) {
    openNorth();

    EXPECT_EQ(menuOf(console_, *nodeOf(console_, u"North")),
              (Menu{{u"Create region", u"To create a new region", 247, 0},
                    {u"", u"", 0, 0x800},
                    {u"Delete Region", u"To Delete a Region", 302, 0},
                    {u"", u"", 0, 0x800},
                    {u"Region Rules", u"For region rules", 261, 0}}));
}

TEST_F(QueueRegion, ofFollowPrintAlsoOffersANewQueue) {
    openFollowNorth();

    const auto menu = menuOf(followConsole_, *nodeOf(followConsole_, u"North"));

    EXPECT_EQ(menu.size(), 7U);
    EXPECT_EQ(menu[5].flags, 0x800);
    EXPECT_EQ(menu[6], (Menu::value_type{u"Follow Printer Queue", u"To add new follow printer queue", 103, 0}));
}

TEST_F(QueueRegion, ofFollowPrintMakesAQueueAndReadsTheQueuesAndItselfAgain) {
    openFollowNorth();
    const auto north = nodeOf(followConsole_, u"North");
    const auto northRow = std::to_string(rowOf(followConsole_, u"North"));
    const auto queuesRow = followConsole_.addScopeRow(root_);
    root_->scopeFields().ID = queuesRow;
    platform_.ui.expect<queues::AddQueueDlg>([](queues::AddQueueDlg& dialog) {
        EXPECT_EQ(dialog.title(), u"Add Follow Printer Queue");
        dialog.head.name.userTyped(u"Everywhere");
        dialog.okButton().userPressed();
    });

    EXPECT_EQ(north->Command(103, DataObjectType::scope), Result::ok);

    EXPECT_TRUE(estate_.changes(1).front().starts_with("9: "));
    EXPECT_EQ(followConsole_.childNames(queuesRow), (Names{u"South", u"North"}));
    EXPECT_EQ(followConsole_.calls.back(), "SelectScopeItem " + northRow);
    EXPECT_EQ(platform_.ui.presses(), Presses{{Key::f5}});
}

TEST_F(QueueRegion, readsItselfAgainAlsoWhenNoQueueWasMade) {
    openFollowNorth();
    platform_.ui.expect<queues::AddQueueDlg>([](queues::AddQueueDlg& dialog) { dialog.cancelButton().userPressed(); });

    EXPECT_EQ(nodeOf(followConsole_, u"North")->Command(103, DataObjectType::scope), Result::notDone);

    EXPECT_EQ(platform_.ui.presses(), Presses{{Key::f5}});
}

TEST_F(QueueRegion, withoutAnIdMakesNoQueue) {
    const auto region =
        std::make_shared<QueueRegionNode>(platform_, support::region(0, 0, u"Nowhere"), QueueMode::followPrint);
    platform_.ui.expectBox(Answer::ok, u"New Region Id Not Found");

    EXPECT_EQ(region->Command(103, DataObjectType::scope), Result::notDone);

    EXPECT_EQ(platform_.ui.boxes().front().caption, u"Warning");
    EXPECT_EQ(platform_.ui.boxes().front().style, platform::boxStyle::iconWarning);
}

TEST_F(QueueRegion, showsItsRules) {
    openNorth();
    platform_.ui.expect<regions::RegionRulesDlg>(
        [](regions::RegionRulesDlg& dialog) { dialog.okButton().userPressed(); });

    EXPECT_EQ(nodeOf(console_, u"North")->Command(261, DataObjectType::scope), Result::ok);

    EXPECT_EQ(estate_.requests(4).back(), "61: 00 00 01 00 00 00");
}

TEST_F(QueueRegion, setsItsVerbsInOrder) {
    openNorth();

    EXPECT_EQ(verbsOf(console_, *nodeOf(console_, u"North")),
              (Strings{"refresh on", "rename on", "delete off", "copy off"}));
}

TEST_F(QueueRegion, createsASubRegionAndReadsItselfAgain) {
    openNorth();
    platform_.ui.expect<CreateRegionDlg>([](CreateRegionDlg& dialog) {
        dialog.name.userTyped(u"A");
        dialog.okButton().userPressed();
    });

    EXPECT_EQ(nodeOf(console_, u"North")->Command(247, DataObjectType::scope), Result::ok);

    EXPECT_EQ(estate_.changes(1), Strings{"1: 00 01 00 00 00 02 00 41 00"});
    EXPECT_EQ(console_.calls, Strings{"SelectScopeItem " + std::to_string(rowOf(console_, u"North"))});
    EXPECT_EQ(platform_.ui.presses(), Presses{{Key::f5}});
}

TEST_F(QueueRegion, pressesTabTwiceAfterCreatingASubRegionFromARow) {
    openNorth();
    platform_.ui.expect<CreateRegionDlg>([](CreateRegionDlg& dialog) {
        dialog.name.userTyped(u"A");
        dialog.okButton().userPressed();
    });

    nodeOf(console_, u"Harbour")->Command(247, DataObjectType::result);

    EXPECT_EQ(platform_.ui.presses(), (Presses{{Key::tab, Key::tab}}));
}

TEST_F(QueueRegion, isDeletedAfterTheQuestionWhenNothingIsInIt) {
    expandIn(console_, u"Queues");
    const auto south = nodeOf(console_, u"South");
    const auto row = std::to_string(rowOf(console_, u"South"));
    console_.calls.clear();
    platform_.ui.expectBox(Answer::ok, deleteQuestion);

    EXPECT_EQ(south->Command(302, DataObjectType::scope), Result::ok);

    EXPECT_EQ(estate_.changes(1), Strings{"45: 03 00 00 00 00"});
    EXPECT_EQ(console_.calls, (Strings{"DeleteItem " + row + " itself", "SelectScopeItem 1"}));
    EXPECT_EQ(platform_.ui.presses(), Presses{{Key::f5}});
}

TEST_F(QueueRegion, isNotDeletedWhileItHasPrintersFollowPrintQueuesOrSubRegions) {
    estate_.printers = {support::printer("p1", 3, u"Copier")};
    openNorth();
    const auto sent = platform_.commands().size();
    platform_.ui.expectBox(Answer::ok, deleteQuestion);
    platform_.ui.expectBox(Answer::ok, notEmpty);

    EXPECT_EQ(nodeOf(console_, u"South")->Command(302, DataObjectType::scope), Result::notDone);

    EXPECT_EQ(platform_.ui.boxes().back().caption, u"Information");
    EXPECT_EQ(platform_.ui.boxes().back().style, platform::boxStyle::iconInformation);
    EXPECT_EQ(platform_.commands().size(), sent + 3);
    EXPECT_TRUE(estate_.changes(0).empty());
}

TEST_F(QueueRegion, isRenamedInTheTreeOfPrintersAndQueues) {
    openNorth();

    EXPECT_EQ(rename(console_, *nodeOf(console_, u"Harbour"), u"B"), Result::ok);

    EXPECT_EQ(estate_.changes(1), Strings{"2: 00 02 00 00 00 02 00 42 00"});
    EXPECT_EQ(platform_.ui.presses(), Presses{{Key::f5}});
}

TEST_F(QueueRegion, takesNothingThatIsPasted) {
    openNorth();

    EXPECT_EQ(queryPaste(console_, *nodeOf(console_, u"South"), *nodeOf(console_, u"Harbour")), Result::notDone);
}

TEST_F(QueueRegion, showsItsRegionsThoughItsQueuesCouldNotBeRead) {
    estate_.brokenLists = {{6, support::frame({support::dataMessage(support::hex("02 00"))})}};

    openNorth();

    EXPECT_EQ(console_.childNames(rowOf(console_, u"North")), Names{u"Harbour"});
}

} // namespace
