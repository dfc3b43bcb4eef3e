#include "queues/QueuePropertiesDlg.h"

#include "forms/FormWalk.h"
#include "tests/queues/QueueDialogs.h"
#include "tests/support/FormChecks.h"

#include <array>

namespace {

using queues::QueueMode;
using queues::QueuePropertiesDlg;

class QueuePropertiesDialog : public QueueDialogs {
protected:
    QueuePropertiesDlg dialog_{platform_, QueueMode::queue, "q1", u"Lobby"};
};

TEST_F(QueuePropertiesDialog, isCalledAfterItsQueue) {
    dialog_.open();

    EXPECT_EQ(dialog_.title(), u"Lobby Properties");
    support::expectSound(dialog_);
}

TEST_F(QueuePropertiesDialog, showsTheQueueWithItsGeneralPageInFront) {
    dialog_.open();

    EXPECT_EQ(estate_.requests(1).front(), "6: 02 00 71 31 00 00 00 00 04 00");
    EXPECT_EQ(dialog_.head.name.text(), u"Lobby");
    EXPECT_EQ(dialog_.head.models.brand.selectedText(), u"Oki");
    EXPECT_EQ(dialog_.head.models.model.selectedText(), u"Oki C2");
    EXPECT_EQ(dialog_.head.timeToLive.text(), u"90");
    EXPECT_EQ(dialog_.general.comment.text(), u"Ground floor");
    EXPECT_EQ(dialog_.general.adminComment.text(), u"Moves in May");
    EXPECT_EQ(dialog_.general.status.physical.text(), u"Error: No Paper");
    EXPECT_EQ(dialog_.general.status.printing.text(), u"Connecting Printer");
    EXPECT_EQ(dialog_.general.configurations.list.rows().size(), 2U);
    EXPECT_EQ(dialog_.tabs.current(), 0U);
    EXPECT_EQ(dialog_.tabs.pages().front()->title(), u"General");
    EXPECT_EQ(dialog_.tabs.pages().back()->title(), u"Rules");
}

TEST_F(QueuePropertiesDialog, asksForTheRulesOfTheQueue) {
    dialog_.open();

    EXPECT_EQ(std::ranges::count(platform_.commands(), "ListRuleEntries"), 1);
}

TEST_F(QueuePropertiesDialog, doesNotOfferLocalHandling) {
    dialog_.open();

    for (const auto* control : forms::controlsOf(dialog_)) {
        EXPECT_EQ(control->label().find(u"Handling"), wire::WideString::npos);
    }
}

TEST_F(QueuePropertiesDialog, leavesLocalHandlingAsItIs) {
    dialog_.open();

    dialog_.okButton().userPressed();

    const auto record = updated(1);
    EXPECT_FALSE(record.localDriverHandling);
    EXPECT_TRUE(record.localConfigHandling);
}

TEST_F(QueuePropertiesDialog, sendsAnUpdateForInvisibleEvenIfNothingWasChanged) {
    dialog_.open();

    dialog_.okButton().userPressed();

    EXPECT_EQ(updated(1).invisible, 0);
}

TEST_F(QueuePropertiesDialog, sendsAnEqualUpdateForEachFieldThatWasChanged) {
    dialog_.open();
    dialog_.head.name.userTyped(u"Foyer");
    dialog_.head.models.model.userSelected(0);
    dialog_.head.timeToLive.userTyped(u"30");
    dialog_.general.status.invisible.userChecked(true);

    dialog_.okButton().userPressed();

    const auto record = updated(4);
    EXPECT_EQ(record.name, u"Foyer");
    EXPECT_EQ(record.modelId, "o1");
    EXPECT_EQ(record.timeToLive, 30);
    EXPECT_EQ(record.invisible, 1);
    EXPECT_EQ(record.location, u"Ground floor");
    EXPECT_EQ(dialog_.result(), 1);
}

TEST_F(QueuePropertiesDialog, takesEmptyCommentsButNoEmptyTimeToLive) {
    dialog_.open();
    dialog_.general.comment.userTyped(u"");
    dialog_.general.adminComment.userTyped(u"");
    dialog_.head.timeToLive.userTyped(u"");

    dialog_.okButton().userPressed();

    const auto record = updated(3);
    EXPECT_EQ(record.location, u"");
    EXPECT_EQ(record.comment, u"");
    EXPECT_EQ(record.timeToLive, 90);
}

TEST_F(QueuePropertiesDialog, takesTheModelOfTheChosenRowAndNotTheFirstOfItsName) {
    catalogue_.models["oki"].push_back({"o3", u"Oki C1", true});
    dialog_.open();
    dialog_.head.models.model.userSelected(2);

    dialog_.okButton().userPressed();

    EXPECT_EQ(updated(2).modelId, "o3");
}

TEST_F(QueuePropertiesDialog, keepsTheModelOfAQueueWhoseModelIsNotListed) {
    estate_.queues.front().modelId = "gone";
    dialog_.open();

    dialog_.okButton().userPressed();

    EXPECT_EQ(updated(1).modelId, "gone");
}

TEST_F(QueuePropertiesDialog, cutsATimeToLiveTo16Bits) {
    dialog_.open();
    dialog_.head.timeToLive.userTyped(u"70000");

    dialog_.okButton().userPressed();

    EXPECT_EQ(updated(2).timeToLive, 4464);
}

TEST_F(QueuePropertiesDialog, takesTheLargestNumberForATimeToLiveBeyondAll) {
    dialog_.open();
    dialog_.head.timeToLive.userTyped(u"99999999999999999999");

    dialog_.okButton().userPressed();

    EXPECT_EQ(updated(2).timeToLive, 65535);
}

TEST_F(QueuePropertiesDialog, cannotBeConfirmedWithoutAName) {
    dialog_.open();
    EXPECT_TRUE(dialog_.okButton().enabled());

    dialog_.head.name.userTyped(u"");

    EXPECT_FALSE(dialog_.okButton().enabled());
}

TEST_F(QueuePropertiesDialog, canBeConfirmedForAQueueThatHasNoName) {
    estate_.queues.front().name = u"";
    dialog_.open();

    dialog_.okButton().userPressed();

    EXPECT_EQ(updated(1).name, u"");
}

TEST_F(QueuePropertiesDialog, keepsAFollowPrintQueueOne) {
    QueuePropertiesDlg dialog(platform_, QueueMode::followPrint, "f1", u"Anywhere");
    dialog.open();

    dialog.okButton().userPressed();

    EXPECT_EQ(estate_.requests(1).front(), "6: 02 00 66 31 00 00 00 00 04 00");
    EXPECT_EQ(updated(1).recordType, protocol::recordType::followQueue);
}

TEST_F(QueuePropertiesDialog, cannotBeConfirmedWhenAListCannotBeRead) {
    for (const std::uint16_t opcode : std::array<std::uint16_t, 4>{4, 5, 17, 61}) {
        breakList(opcode);
        QueuePropertiesDlg dialog(platform_, QueueMode::queue, "q1", u"Lobby");

        dialog.open();
        dialog.head.name.userTyped(u"A");

        EXPECT_FALSE(dialog.okButton().enabled()) << opcode;
    }
}

TEST_F(QueuePropertiesDialog, makesAQueueInNewMode) {
    QueuePropertiesDlg dialog(platform_, {.mode = QueueMode::queue, .printerId = "p1", .regionId = 5});
    dialog.open();
    EXPECT_EQ(dialog.title(), u"Add Queue");
    EXPECT_EQ(dialog.head.timeToLive.text(), u"60");
    EXPECT_FALSE(dialog.okButton().enabled());
    EXPECT_EQ(platform_.commands(), (Strings{"ListDriverBrands"}));
    dialog.head.name.userTyped(u"Lobby 2");

    dialog.okButton().userPressed();

    const auto request = created();
    EXPECT_EQ(request.physicalPrinterId, "p1");
    EXPECT_EQ(request.record.name, u"Lobby 2");
    EXPECT_EQ(request.record.timeToLive, 60);
    EXPECT_EQ(dialog.result(), 1);
}

} // namespace
