#include "queues/QueuePreferencesDlg.h"

#include "tests/queues/QueueDialogs.h"
#include "tests/support/FormChecks.h"

namespace {

using queues::QueuePreferencesDlg;

class QueuePreferencesDialog : public QueueDialogs {
protected:
    void open() { dialog_.open(); }

    QueuePreferencesDlg dialog_{platform_, "q1"};
};

TEST_F(QueuePreferencesDialog, isSound) {
    open();

    EXPECT_EQ(dialog_.title(), u"Queue Preferences");
    support::expectSound(dialog_);
}

TEST_F(QueuePreferencesDialog, showsTheQueue) {
    open();

    EXPECT_EQ(estate_.requests(1).front(), "6: 02 00 71 31 00 00 00 00 04 00");
    EXPECT_EQ(dialog_.head.name.text(), u"Lobby");
    EXPECT_EQ(dialog_.head.models.brand.selectedText(), u"Oki");
    EXPECT_EQ(dialog_.head.models.model.selectedText(), u"Oki C2");
    EXPECT_EQ(dialog_.head.timeToLive.text(), u"90");
    EXPECT_FALSE(dialog_.localDriverHandling.checked());
    EXPECT_TRUE(dialog_.localConfigHandling.checked());
    EXPECT_EQ(dialog_.comment.text(), u"Ground floor");
    EXPECT_EQ(dialog_.adminComment.text(), u"Moves in May");
    EXPECT_FALSE(dialog_.status.invisible.checked());
}

TEST_F(QueuePreferencesDialog, tellsTheStatesInTheWordsOfDialogs) {
    open();

    EXPECT_EQ(dialog_.status.physical.text(), u"Error: No Paper");
    EXPECT_EQ(dialog_.status.printing.text(), u"Connecting Printer");
}

TEST_F(QueuePreferencesDialog, sendsAnEqualUpdateForEachFieldThatWasChanged) {
    open();
    dialog_.head.name.userTyped(u"Foyer");
    dialog_.head.models.model.userSelected(0);
    dialog_.localDriverHandling.userChecked(true);
    dialog_.localConfigHandling.userChecked(false);
    dialog_.status.invisible.userChecked(true);

    dialog_.okButton().userPressed();

    const auto record = updated(5);
    EXPECT_EQ(record.name, u"Foyer");
    EXPECT_EQ(record.modelId, "o1");
    EXPECT_EQ(record.timeToLive, 90);
    EXPECT_TRUE(record.localDriverHandling);
    EXPECT_FALSE(record.localConfigHandling);
    EXPECT_EQ(record.location, u"Ground floor");
    EXPECT_EQ(record.comment, u"Moves in May");
    EXPECT_EQ(record.invisible, 1);
    EXPECT_EQ(dialog_.result(), 1);
}

TEST_F(QueuePreferencesDialog, clearsCommentsThatAreEmptied) {
    open();
    dialog_.comment.userTyped(u"");
    dialog_.adminComment.userTyped(u"");

    dialog_.okButton().userPressed();

    const auto record = updated(2);
    EXPECT_EQ(record.location, u"");
    EXPECT_EQ(record.comment, u"");
}

TEST_F(QueuePreferencesDialog, sendsNothingWhenNothingWasChanged) {
    open();

    dialog_.okButton().userPressed();

    EXPECT_EQ(dialog_.result(), 1);
    EXPECT_TRUE(estate_.changes(0).empty());
}

TEST_F(QueuePreferencesDialog, cannotBeConfirmedWithoutAName) {
    open();
    EXPECT_TRUE(dialog_.okButton().enabled());

    dialog_.head.name.userTyped(u"");

    EXPECT_FALSE(dialog_.okButton().enabled());
}

TEST_F(QueuePreferencesDialog, cannotBeConfirmedWhenTheQueueCannotBeRead) {
    estate_.queues.clear();

    open();
    dialog_.head.name.userTyped(u"A");

    EXPECT_FALSE(dialog_.okButton().enabled());
}

TEST_F(QueuePreferencesDialog, cannotBeConfirmedWhenItsBrandsCannotBeRead) {
    breakList(4);

    open();
    dialog_.head.name.userTyped(u"A");

    EXPECT_FALSE(dialog_.okButton().enabled());
}

TEST_F(QueuePreferencesDialog, cannotBeConfirmedWhenItsModelsCannotBeRead) {
    breakList(5);

    open();
    dialog_.head.name.userTyped(u"A");

    EXPECT_FALSE(dialog_.okButton().enabled());
}

TEST_F(QueuePreferencesDialog, cannotBeConfirmedWhenItsConfigurationsCannotBeRead) {
    breakList(17);

    open();
    dialog_.head.name.userTyped(u"A");

    EXPECT_FALSE(dialog_.okButton().enabled());
}

TEST_F(QueuePreferencesDialog, tellsDriverAndLocaleOfTheSelectedConfiguration) {
    open();
    ASSERT_NE(dialog_.configurations.driver, nullptr);

    dialog_.configurations.list.userSelected(1);

    EXPECT_EQ(dialog_.configurations.driver->text(), u"PostScript");
    EXPECT_EQ(dialog_.configurations.locale->text(), u"en-GB");
}

} // namespace
