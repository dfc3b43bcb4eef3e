#include "queues/AddQueueDlg.h"

#include "tests/queues/QueueDialogs.h"
#include "tests/support/FormChecks.h"

namespace {

using queues::AddQueueDlg;
using queues::NewQueue;
using queues::QueueMode;

class AddQueueDialog : public QueueDialogs {
protected:
    NewQueue underPrinter() const { return {.mode = QueueMode::queue, .printerId = "p1", .regionId = 5}; }
    NewQueue inRegion() const { return {.mode = QueueMode::followPrint, .printerId = {}, .regionId = 5}; }
};

TEST_F(AddQueueDialog, isCalledAddQueueWithABlankInFrontUntilItIsOpened) {
    AddQueueDlg dialog(platform_, underPrinter());
    EXPECT_EQ(dialog.title(), u" Add Queue");

    dialog.open();

    EXPECT_EQ(dialog.title(), u"Add Queue");
    support::expectSound(dialog);
}

TEST_F(AddQueueDialog, isCalledAddFollowPrinterQueueForFollowPrint) {
    AddQueueDlg dialog(platform_, inRegion());

    dialog.open();

    EXPECT_EQ(dialog.title(), u"Add Follow Printer Queue");
}

TEST_F(AddQueueDialog, offersSixtyAsTimeToLiveAndTheBrands) {
    AddQueueDlg dialog(platform_, underPrinter());

    dialog.open();

    EXPECT_EQ(dialog.head.timeToLive.text(), u"60");
    EXPECT_EQ(rowsOf(dialog.head.models.brand), (Names{u"Acme", u"Oki"}));
    EXPECT_TRUE(dialog.head.models.model.items().empty());
}

TEST_F(AddQueueDialog, limitsBothCommentsTo255Characters) {
    AddQueueDlg dialog(platform_, underPrinter());
    dialog.open();

    EXPECT_TRUE(dialog.comment.userTyped(wire::WideString(255, u'x')));
    EXPECT_FALSE(dialog.comment.userTyped(wire::WideString(256, u'x')));
    EXPECT_FALSE(dialog.adminComment.userTyped(wire::WideString(256, u'x')));
}

TEST_F(AddQueueDialog, isConfirmableOnlyWithAName) {
    AddQueueDlg dialog(platform_, underPrinter());
    dialog.open();
    EXPECT_FALSE(dialog.okButton().enabled());

    dialog.head.name.userTyped(u"A");
    EXPECT_TRUE(dialog.okButton().enabled());

    dialog.head.name.userTyped(u"");
    EXPECT_FALSE(dialog.okButton().enabled());
}

TEST_F(AddQueueDialog, isNotConfirmableWhenTheBrandsCannotBeRead) {
    breakList(4);
    AddQueueDlg dialog(platform_, underPrinter());
    dialog.open();

    dialog.head.name.userTyped(u"A");

    EXPECT_FALSE(dialog.okButton().enabled());
}

TEST_F(AddQueueDialog, isNotConfirmableWhileTheModelsOfTheBrandCannotBeRead) {
    AddQueueDlg dialog(platform_, underPrinter());
    dialog.open();
    dialog.head.name.userTyped(u"A");
    breakList(5);

    dialog.head.models.brand.userSelected(0);

    EXPECT_FALSE(dialog.okButton().enabled());
}

TEST_F(AddQueueDialog, makesAQueueUnderItsPrinter) {
    AddQueueDlg dialog(platform_, underPrinter());
    dialog.open();
    dialog.head.name.userTyped(u"Lobby 2");
    dialog.head.models.brand.userSelected(1);
    dialog.head.models.model.userSelected(1);
    dialog.head.timeToLive.userTyped(u"120");
    dialog.comment.userTyped(u"Second floor");
    dialog.adminComment.userTyped(u"For guests");

    dialog.okButton().userPressed();

    const auto request = created();
    EXPECT_EQ(request.physicalPrinterId, "p1");
    EXPECT_EQ(request.record.recordType, protocol::recordType::queue);
    EXPECT_EQ(request.record.regionId, 5);
    EXPECT_EQ(request.record.name, u"Lobby 2");
    EXPECT_EQ(request.record.modelId, "o2");
    EXPECT_EQ(request.record.timeToLive, 120);
    EXPECT_EQ(request.record.location, u"Second floor");
    EXPECT_EQ(request.record.comment, u"For guests");
    EXPECT_EQ(dialog.result(), 1);
}

TEST_F(AddQueueDialog, makesAFollowPrintQueueInItsRegionWithoutAPrinter) {
    AddQueueDlg dialog(platform_, inRegion());
    dialog.open();
    dialog.head.name.userTyped(u"Everywhere");

    dialog.okButton().userPressed();

    const auto request = created();
    EXPECT_EQ(request.physicalPrinterId, "");
    EXPECT_EQ(request.record.recordType, protocol::recordType::followQueue);
    EXPECT_EQ(request.record.regionId, 5);
    EXPECT_EQ(request.record.modelId, "");
}

TEST_F(AddQueueDialog, leavesTheTimeToLiveAt0WhenItIsEmptied) {
    AddQueueDlg dialog(platform_, underPrinter());
    dialog.open();
    dialog.head.name.userTyped(u"A");
    dialog.head.timeToLive.userTyped(u"");

    dialog.okButton().userPressed();

    EXPECT_EQ(created().record.timeToLive, 0);
}

TEST_F(AddQueueDialog, takesTheFirstOfTwoModelsWithTheNameThatIsChosen) {
    catalogue_.models["acme"].push_back({"a3", u"Acme Laser 1", true});
    AddQueueDlg dialog(platform_, underPrinter());
    dialog.open();
    dialog.head.name.userTyped(u"A");
    dialog.head.models.brand.userSelected(0);
    dialog.head.models.model.userSelected(2);

    dialog.okButton().userPressed();

    EXPECT_EQ(created().record.modelId, "a1");
}

TEST_F(AddQueueDialog, endsWithOkAlsoWhenTheServerRefusesTheQueue) {
    estate_.createReply.status = {.caption = u"Not saved", .text = u"The name is taken.", .style = 0x30};
    AddQueueDlg dialog(platform_, underPrinter());
    dialog.open();
    dialog.head.name.userTyped(u"A");

    dialog.okButton().userPressed();

    EXPECT_EQ(dialog.result(), 1);
}

TEST_F(AddQueueDialog, cannotBeConfirmedWithoutAPrinter) {
    AddQueueDlg dialog(platform_, {.mode = QueueMode::queue, .printerId = {}, .regionId = 5});
    dialog.open();

    dialog.head.name.userTyped(u"A");

    EXPECT_FALSE(dialog.okButton().enabled());
    EXPECT_EQ(platform_.failures().size(), 1U);
}

TEST_F(AddQueueDialog, sendsNothingOnCancel) {
    AddQueueDlg dialog(platform_, underPrinter());
    dialog.open();
    dialog.head.name.userTyped(u"A");

    dialog.cancelButton().userPressed();

    EXPECT_EQ(dialog.result(), 2);
    EXPECT_TRUE(estate_.changes(0).empty());
}

} // namespace
