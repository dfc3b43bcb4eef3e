#include "printers/PrinterNode.h"

#include "printers/PrinterPropertiesDlg.h"
#include "queues/AddQueueDlg.h"
#include "queues/QueueNode.h"
#include "tests/printers/PrinterTree.h"
#include "tests/support/Bytes.h"
#include "tests/support/DriverEstate.h"

namespace {

using console::DataObjectType;
using console::Result;
using platform::Answer;
using platform::Key;
using support::nodeOf;
using support::rowOf;
using support::shownNode;

class Printer : public PrinterTree {
protected:
    Printer() {
        auto lobby = support::printer("q1", 1, u"Lobby");
        lobby.jobs = 3;
        lobby.printingStatus = 1;
        estate_.queuesOfPrinter["p1"] = {lobby, support::printer("q2", 1, u"Office")};
    }
};

constexpr const char16_t* question = u"Are you sure you want to delete the selected printer?";

TEST_F(Printer, holdsItsQueuesLastOfTheListFirst) {
    openNorth();

    expandNode(u"Copier");

    EXPECT_EQ(console_.childNames(rowOf(console_, u"Copier")), (Names{u"Office", u"Lobby"}));
    EXPECT_EQ(estate_.requests(4).back(), "6: 02 00 70 31 00 00 00 00 01 00");
}

TEST_F(Printer, showsItsQueuesInThreeColumns) {
    openNorth();
    expandNode(u"Copier");

    show(console_, *nodeOf(console_, u"Copier"));

    EXPECT_EQ(console_.titles(), (Names{u"Queue", u"Jobs", u"Status"}));
    EXPECT_EQ(console_.columns.at(0).width, 250);
    EXPECT_EQ(console_.columns.at(1).width, 250);
    EXPECT_EQ(console_.columns.at(2).width, 400);
    EXPECT_EQ(console_.table(), (Table{{u"Office", u"0", u""}, {u"Lobby", u"3", u"Dispatcher"}}));
}

TEST_F(Printer, showsItsQueuesFromMemory) {
    openNorth();
    expandNode(u"Copier");
    const auto commands = platform_.commands().size();

    show(console_, *nodeOf(console_, u"Copier"));

    EXPECT_EQ(platform_.commands().size(), commands);
}

TEST_F(Printer, asksForTheSameQueuesAgainOnARefresh) {
    openNorth();
    expandNode(u"Copier");

    support::expand(console_, *nodeOf(console_, u"Copier"), rowOf(console_, u"Copier"), 2);

    EXPECT_EQ(estate_.requests(5).back(), "6: 02 00 70 31 00 00 00 00 01 00");
    EXPECT_EQ(console_.childNames(rowOf(console_, u"Copier")), (Names{u"Office", u"Lobby"}));
}

TEST_F(Printer, keepsTheRowsOfItsQueuesAcrossARefresh) {
    openNorth();
    expandNode(u"Copier");
    show(console_, *nodeOf(console_, u"Copier"));
    estate_.queuesOfPrinter["p1"].front().name = u"Foyer";

    refresh(console_, *nodeOf(console_, u"Copier"), rowOf(console_, u"Copier"));

    console::ResultItemFields* fields = nullptr;
    nodeOf(console_, u"Foyer")->GetResultData(&fields);
    EXPECT_EQ(fields->itemID, console_.resultRows.at(1).id);
}

TEST_F(Printer, keepsItsQueuesForTheListWhenTheServerDoesNotAnswer) {
    openNorth();
    expandNode(u"Copier");
    estate_.goOffline();

    EXPECT_EQ(expandNode(u"Copier"), Result::notDone);
    show(console_, *nodeOf(console_, u"Copier"));

    EXPECT_EQ(console_.resultRows.size(), 2U);
}

TEST_F(Printer, withAStatusByteOf0x34ShowsSnmpStatusInTheTree) {
    estate_.printers[0].snmpStatus = 0x34;
    openNorth();

    EXPECT_EQ(wire::WideString(nodeOf(console_, u"Copier")->GetResultPaneColInfo(3)), u"SNMP status");
}

TEST_F(Printer, hasNoTextBeyondItsSixColumns) {
    openNorth();

    EXPECT_EQ(wire::WideString(nodeOf(console_, u"Copier")->GetResultPaneColInfo(6)), u"");
    EXPECT_EQ(wire::WideString(nodeOf(console_, u"Copier")->GetResultPaneColInfo(-1)), u"");
}

TEST_F(Printer, offersToBeEditedAQueueAndToBeDeleted) {
    openNorth();

    EXPECT_EQ(menuOf(console_, *nodeOf(console_, u"Copier")),
              (Menu{{u"Edit Printer/Printer Properties", u"To edit printer", 249, 0},
                    {u"Add Queue", u"To Add New queue", 229, 0},
                    {u"Delete Printer", u"To delete printer", 293, 0}}));
}

TEST_F(Printer, isEditedByTwoCommandsOfWhichTheMenuOffersOne) {
    openNorth();
    for (const std::int32_t command : {249, 358}) {
        platform_.ui.expect<printers::PrinterPropertiesDlg>([](printers::PrinterPropertiesDlg& dialog) {
            EXPECT_EQ(dialog.name.text(), u"Copier");
            dialog.cancelButton().userPressed();
        });

        EXPECT_EQ(nodeOf(console_, u"Copier")->Command(command, DataObjectType::scope), Result::notDone);

        EXPECT_EQ(platform_.ui.presses().back(), (std::vector{Key::f5, Key::f5}));
    }
    EXPECT_TRUE(console_.calls.empty());
}

TEST_F(Printer, refreshesTheQueuesOnceItIsEdited) {
    openNorth();
    watchQueues();
    support::DriverEstate drivers(estate_);
    drivers.addSamples();
    estate_.printers[0].modelId = "a1";
    estate_.lists[27] = [](const support::Bytes&) { return std::vector<support::Bytes>(); };
    estate_.lists[61] = estate_.lists[27];
    estate_.replies[76] = [](const support::Bytes&) { return support::hex("00 00 00 00"); };
    platform_.ui.expect<printers::PrinterPropertiesDlg>(
        [](printers::PrinterPropertiesDlg& dialog) { dialog.okButton().userPressed(); });

    EXPECT_EQ(nodeOf(console_, u"Copier")->Command(249, DataObjectType::scope), Result::ok);

    EXPECT_EQ(std::ranges::count(console_.calls, queuesRefreshed()), 1);
}

TEST_F(Printer, makesAQueueUnderItselfAndIsReadAgainTwice) {
    openNorth();
    platform_.ui.expect<queues::AddQueueDlg>([](queues::AddQueueDlg& dialog) {
        EXPECT_EQ(dialog.title(), u"Add Queue");
        dialog.head.name.userTyped(u"Lobby");
        dialog.okButton().userPressed();
    });

    EXPECT_EQ(nodeOf(console_, u"Copier")->Command(229, DataObjectType::scope), Result::ok);

    EXPECT_TRUE(estate_.changes(1).front().starts_with("9: 02 00 70 31 ")); // under the printer "p1"
    EXPECT_EQ(console_.calls, Strings{"SelectScopeItem " + idOf(u"Copier")});
    EXPECT_EQ(platform_.ui.presses(), (Presses{{Key::f5, Key::f5}}));
}

TEST_F(Printer, pressesTabFirstAfterAQueueWasMadeFromItsRow) {
    openNorth();
    platform_.ui.expect<queues::AddQueueDlg>([](queues::AddQueueDlg& dialog) {
        dialog.head.name.userTyped(u"Lobby");
        dialog.okButton().userPressed();
    });

    nodeOf(console_, u"Copier")->Command(229, DataObjectType::result);

    EXPECT_TRUE(console_.calls.empty());
    EXPECT_EQ(platform_.ui.presses(), (Presses{{Key::tab}, {Key::f5, Key::f5}}));
}

TEST_F(Printer, setsItsVerbsInOrderAndDoesNotTouchRefresh) {
    openNorth();

    EXPECT_EQ(verbsOf(console_, *nodeOf(console_, u"Copier")),
              (Strings{"rename off", "delete off", "cut on", "copy off", "paste on"}));
}

TEST_F(Printer, isDeletedAfterTheQuestion) {
    openNorth();
    watchQueues();
    const auto row = idOf(u"Copier");
    platform_.ui.expectBox(Answer::ok, question);

    EXPECT_EQ(nodeOf(console_, u"Copier")->Command(293, DataObjectType::scope), Result::ok);

    EXPECT_EQ(estate_.changes(1), Strings{"36: 01 02 00 70 31"});
    EXPECT_EQ(console_.calls.front(), "DeleteItem " + row + " itself");
    EXPECT_EQ(std::ranges::count(console_.calls, queuesRefreshed()), 1);
    EXPECT_EQ(console_.childNames(queuesRow_), (Names{u"South", u"North"}));
    EXPECT_EQ(console_.calls.back(), "SelectScopeItem " + idOf(u"North"));
    EXPECT_EQ(platform_.ui.presses(),
              (Presses{{Key::f5}, {Key::f5, Key::f5}})); // from the handler, and after the command
}

TEST_F(Printer, leavesTheListWhenItIsDeletedFromThere) {
    openNorth();
    show(console_, *nodeOf(console_, u"North"));
    platform_.ui.expectBox(Answer::ok, question);

    shownNode(console_, u"Copier")->Command(293, DataObjectType::result);

    EXPECT_EQ(console_.table().size(), 2U);
    EXPECT_EQ(console_.childNames(rowOf(console_, u"North")), (Names{u"Harbour", u"Plotter"}));
    EXPECT_EQ(console_.calls.back(), "SelectScopeItem " + idOf(u"North"));
}

TEST_F(Printer, leavesTheListAloneWhenItIsDeletedInTheTree) {
    openNorth();
    show(console_, *nodeOf(console_, u"North"));
    platform_.ui.expectBox(Answer::ok, question);

    shownNode(console_, u"Copier")->Command(293, DataObjectType::scope);

    EXPECT_EQ(console_.resultRows.size(), 3U);
}

TEST_F(Printer, staysWhenTheQuestionIsAnsweredWithCancelAndIsRefreshedTwice) {
    openNorth();
    const auto commands = platform_.commands().size();
    platform_.ui.expectBox(Answer::cancel, question);

    EXPECT_EQ(nodeOf(console_, u"Copier")->Command(293, DataObjectType::scope), Result::notDone);

    EXPECT_EQ(platform_.commands().size(), commands);
    EXPECT_TRUE(console_.calls.empty());
    EXPECT_EQ(platform_.ui.presses(), (Presses{{Key::f5, Key::f5}}));
}

TEST_F(Printer, staysWhenTheDeleteCannotBeSent) {
    openNorth();
    const auto copier = nodeOf(console_, u"Copier");
    estate_.goOffline();
    platform_.ui.expectBox(Answer::ok, question);

    EXPECT_EQ(copier->Command(293, DataObjectType::scope), Result::notDone);

    EXPECT_TRUE(console_.calls.empty());
}

TEST_F(Printer, thatStandsInNoConsoleIsDeletedOnTheServerAlone) {
    const auto printer = std::make_shared<printers::PrinterNode>(platform_, support::printer("p1", 1, u"Copier"));
    platform_.ui.expectBox(Answer::ok, question);

    EXPECT_EQ(printer->Command(293, DataObjectType::scope), Result::ok);

    EXPECT_EQ(estate_.changes(1), Strings{"36: 01 02 00 70 31"});
    EXPECT_TRUE(console_.calls.empty());
    EXPECT_EQ(platform_.ui.presses(), (Presses{{Key::f5, Key::f5}}));
}

TEST_F(Printer, whoseParentIsNotKnownOnlyLeavesTheTree) {
    const auto printer = std::make_shared<printers::PrinterNode>(platform_, support::printer("p1", 1, u"Copier"));
    support::expand(console_, *printer, console_.addScopeRow(printer));
    const auto row = idOf(u"Copier");
    watchQueues();
    console_.calls.clear();
    platform_.ui.expectBox(Answer::ok, question);

    EXPECT_EQ(printer->Command(293, DataObjectType::scope), Result::ok);

    EXPECT_EQ(console_.calls, Strings{"DeleteItem " + row + " itself"});
    EXPECT_EQ(platform_.ui.presses(), (Presses{{Key::f5, Key::f5}}));
}

TEST_F(Printer, isRefreshedTwiceAfterACommandThatIsNotItsOwn) {
    openNorth();

    EXPECT_EQ(nodeOf(console_, u"Copier")->Command(999, DataObjectType::scope), Result::notDone);

    EXPECT_TRUE(console_.calls.empty());
    EXPECT_EQ(platform_.ui.presses(), (Presses{{Key::f5, Key::f5}}));
}

TEST_F(Printer, isRenamedOnTheServerAndItsParentReadAgain) {
    openNorth();

    EXPECT_EQ(rename(console_, *nodeOf(console_, u"Copier"), u"B"), Result::ok);

    const auto update = estate_.changes(1).front();
    EXPECT_TRUE(update.starts_with("10: 00 00 00 00 02 00 70 31 02 00 42 00 ")) << update;
    EXPECT_EQ(console_.calls, Strings{"SelectScopeItem " + idOf(u"North")});
    EXPECT_EQ(platform_.ui.presses(), Presses{{Key::f5}});
}

TEST_F(Printer, keepsItsNameWhenTheServerRefusesTheNewOne) {
    estate_.updateReply = {.caption = u"Rename", .text = u"That name is taken.", .style = 0x30};
    openNorth();

    EXPECT_EQ(rename(console_, *nodeOf(console_, u"Copier"), u"Plotter"), Result::notDone);

    EXPECT_TRUE(console_.calls.empty());
    EXPECT_TRUE(platform_.ui.presses().empty());
}

TEST_F(Printer, isDeletedByAConsoleThatTakesAMoveForACopy) {
    openNorth();
    const auto copier = nodeOf(console_, u"Copier");

    EXPECT_EQ(notify(console_, *copier, {.event = console::Event::cutOrMove, .source = copier.get()}), Result::ok);

    EXPECT_EQ(estate_.changes(1), Strings{"36: 01 02 00 70 31"});
}

} // namespace
