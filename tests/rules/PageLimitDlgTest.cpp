#include "rules/NewMessageDlg.h"
#include "tests/rules/PageLimitFixture.h"

namespace {

using platform::Answer;
using rules::NewMessageDlg;
using rules::PageLimitDlg;

Names textsOf(const forms::DropList& list) {
    Names texts;
    for (const auto& item : list.items()) {
        texts.push_back(item.text);
    }
    return texts;
}

class PageLimitDialog : public PageLimitFixture {
protected:
    std::uint16_t pagesTakenFrom(const wire::WideString& text) {
        PageLimitDlg dialog(platform_);
        dialog.open();
        dialog.name.userTyped(u"Limit");
        dialog.maxPages.userTyped(text);
        dialog.okButton().userPressed();
        return dialog.record().maxPages;
    }

    float costTakenFrom(const wire::WideString& text) {
        PageLimitDlg dialog(platform_, longJobs());
        dialog.open();
        dialog.maxCost.box.userTyped(text);
        dialog.okButton().userPressed();
        return dialog.record().maxCost;
    }
};

TEST_F(PageLimitDialog, startsWithTheDefaultsOfANewLimit) {
    PageLimitDlg dialog(platform_);

    dialog.open();

    EXPECT_EQ(dialog.title(), u"New Page Limit Rule");
    EXPECT_EQ(dialog.name.text(), u"");
    EXPECT_EQ(dialog.maxPages.text(), u"");
    EXPECT_EQ(dialog.maxCost.box.text(), u"");
    EXPECT_EQ(dialog.format.selectedText(), u"Any");
    EXPECT_EQ(dialog.color.selectedText(), u"Any");
    EXPECT_EQ(dialog.duplex.selectedText(), u"Any");
    EXPECT_EQ(dialog.action.selectedText(), u"Do nothing");
    EXPECT_EQ(dialog.enforce.selectedText(), u"Yes");
    EXPECT_EQ(dialog.priority.text(), u"1");
    EXPECT_EQ(dialog.message.list.selectedText(), u"Cost"); // the last message
    EXPECT_EQ(platform_.commands(), Strings{"ListUserMessages"});
}

TEST_F(PageLimitDialog, offersPapersColorsAndActionsInTheirOrder) {
    PageLimitDlg dialog(platform_);

    dialog.open();

    EXPECT_EQ(textsOf(dialog.format), (Names{u"Any", u"A4", u"A0", u"A1", u"A2", u"A3", u"A5", u"Legal", u"Letter"}));
    EXPECT_EQ(textsOf(dialog.color), (Names{u"Any", u"B/W", u"Color"}));
    EXPECT_EQ(textsOf(dialog.duplex), (Names{u"Any", u"No", u"Yes"}));
    EXPECT_EQ(textsOf(dialog.action),
              (Names{u"Do nothing", u"Allow", u"Delete", u"Move", u"Pause", u"Require PIN-Code", u"Printjob divert"}));
    EXPECT_EQ(textsOf(dialog.enforce), (Names{u"No", u"Yes"}));
    EXPECT_EQ(textsOf(dialog.message.list), (Names{u"Quota", u"Cost", u"<New>"}));
}

TEST_F(PageLimitDialog, limitsNameAndComment) {
    const PageLimitDlg dialog(platform_);

    EXPECT_EQ(dialog.name.options().limit, 64U);
    EXPECT_EQ(dialog.comment.options().limit, 255U);
    EXPECT_TRUE(dialog.destination.options().readOnly);
}

TEST_F(PageLimitDialog, addsANewLimitWithAFreshId) {
    PageLimitDlg dialog(platform_);
    dialog.open();
    dialog.name.userTyped(u"Long jobs");
    dialog.comment.userTyped(u"Out of the way");
    dialog.document.userTyped(u"Report");
    dialog.format.userSelected(5);
    dialog.color.userSelected(2);
    dialog.duplex.userSelected(1);
    dialog.message.list.userSelected(0);
    dialog.maxPages.userTyped(u"250");
    dialog.maxCost.box.userTyped(u"7,5");
    dialog.action.userSelected(2);
    dialog.enforce.userSelected(0);
    dialog.priority.userTyped(u"9");

    dialog.okButton().userPressed();

    EXPECT_EQ(dialog.result(), forms::idOk);
    const auto limit = written(1);
    EXPECT_EQ(wire::parseUuid(limit.id).version(), wire::Uuid::version_random_number_based);
    EXPECT_EQ(limit.priority, 9);
    EXPECT_EQ(limit.name, u"Long jobs");
    EXPECT_EQ(limit.comment, u"Out of the way");
    EXPECT_EQ(limit.document, u"Report");
    EXPECT_EQ(limit.format, 8);
    EXPECT_EQ(limit.color, 2);
    EXPECT_EQ(limit.duplex, 1);
    EXPECT_EQ(limit.maxPages, 250);
    EXPECT_EQ(limit.action, 2);
    EXPECT_EQ(limit.maxCost, 7.5F);
    EXPECT_EQ(limit.messageId, quotaId);
    EXPECT_EQ(limit.destinationId, "");
    EXPECT_EQ(limit.enforce, 0);
    EXPECT_EQ(dialog.record(), limit);
}

TEST_F(PageLimitDialog, showsALimitAsItStands) {
    PageLimitDlg dialog(platform_, longJobs());

    dialog.open();

    EXPECT_EQ(dialog.title(), u"Edit Page Limit Rule");
    EXPECT_EQ(dialog.name.text(), u"Long jobs");
    EXPECT_EQ(dialog.comment.text(), u"Out of the way");
    EXPECT_EQ(dialog.document.text(), u"Report");
    EXPECT_EQ(dialog.format.selectedText(), u"A3");
    EXPECT_EQ(dialog.color.selectedText(), u"B/W");
    EXPECT_EQ(dialog.duplex.selectedText(), u"Yes");
    EXPECT_EQ(dialog.maxPages.text(), u"100");
    EXPECT_EQ(dialog.maxCost.box.text(), u"12,50");
    EXPECT_EQ(dialog.enforce.selectedText(), u"Yes");
    EXPECT_EQ(dialog.priority.text(), u"5");
    EXPECT_EQ(dialog.action.selectedText(), u"Move");
    EXPECT_EQ(dialog.destination.text(), u"Lobby");
    EXPECT_EQ(dialog.message.list.selectedText(), u"Cost");
    EXPECT_EQ(estate_.requests(2), (Strings{"67: 01 00 00", "39: 00 00"}));
}

TEST_F(PageLimitDialog, anEditThatChangesNothingKeepsEverythingTheExtraFieldsIncluded) {
    savedAs(longJobs());

    EXPECT_EQ(written(2), longJobs());
}

TEST_F(PageLimitDialog, asksForNoQueueWhereThereIsNoDestination) {
    auto record = longJobs();
    record.destinationId.clear();
    PageLimitDlg dialog(platform_, record);

    dialog.open();

    EXPECT_EQ(platform_.commands(), Strings{"ListUserMessages"});
}

TEST_F(PageLimitDialog, aPaperThatIsNotKnownIsShownAsAnyAndSavedAsNone) {
    auto record = longJobs();
    record.format = 12;
    PageLimitDlg dialog(platform_, record);
    dialog.open();
    EXPECT_EQ(dialog.format.selectedText(), u"Any");

    dialog.okButton().userPressed();

    EXPECT_EQ(written(2).format, 0);
}

TEST_F(PageLimitDialog, valuesThatNoRowHasAreShownAsTheFirstAndSavedSo) {
    auto record = longJobs();
    record.color = 3;
    record.duplex = 49;
    record.enforce = 2;

    const auto saved = savedAs(record);

    EXPECT_EQ(saved.color, 0);
    EXPECT_EQ(saved.duplex, 0);
    EXPECT_EQ(saved.enforce, 0);
}

TEST_F(PageLimitDialog, wantsANameAndSaysSoInItsOwnSpelling) {
    PageLimitDlg dialog(platform_);
    dialog.open();
    platform_.ui.expectBox(Answer::ok, u"Name field shoud not be blank!");

    dialog.okButton().userPressed();

    EXPECT_FALSE(dialog.ended());
    EXPECT_EQ(dialog.focus(), &dialog.name);
    EXPECT_EQ(platform_.ui.boxes().back().caption, u"Required field is empty");
    EXPECT_EQ(platform_.ui.boxes().back().style, platform::boxStyle::iconWarning);
    EXPECT_EQ(platform_.commands(), Strings{"ListUserMessages"});
}

TEST_F(PageLimitDialog, aLimitWithoutAMessageIsShownWithTheFirst) {
    auto record = longJobs();
    record.messageId.reset();

    EXPECT_EQ(savedAs(record).messageId, quotaId);
}

TEST_F(PageLimitDialog, aLimitWhoseMessageHasGoneIsShownWithTheFirst) {
    estate_.messages = {userMessage(quotaId, u"Quota"), userMessage(wire::randomUuid(), u"Other")};

    EXPECT_EQ(savedAs(longJobs()).messageId, quotaId);
}

TEST_F(PageLimitDialog, thereIsNoMessageWhereNewIsSelectedOrNothing) {
    PageLimitDlg dialog(platform_);
    dialog.open();
    dialog.name.userTyped(u"Limit");
    platform_.ui.expect<NewMessageDlg>([](NewMessageDlg& made) { made.cancelButton().userPressed(); });
    dialog.message.list.userSelected(2);
    dialog.okButton().userPressed();
    EXPECT_EQ(written(1).messageId, std::nullopt);

    estate_.messages.clear();
    EXPECT_EQ(savedAs(longJobs()).messageId, std::nullopt);
}

TEST_F(PageLimitDialog, maxPagesAreTheDigitsAtTheBeginning) {
    EXPECT_EQ(pagesTakenFrom(u"100"), 100);
    EXPECT_EQ(pagesTakenFrom(u"12 pages"), 12);
    EXPECT_EQ(pagesTakenFrom(u"many"), 0);
    EXPECT_EQ(pagesTakenFrom(u"-5"), 0);
    EXPECT_EQ(pagesTakenFrom(u""), 0);
    EXPECT_EQ(pagesTakenFrom(u"65535"), 65535);
    EXPECT_EQ(pagesTakenFrom(u"65537"), 1);
    EXPECT_EQ(pagesTakenFrom(u"18446744073709551617"), 1);
}

TEST_F(PageLimitDialog, maxCostIsReadInTheWayOfTheUserAndWithAPoint) {
    EXPECT_EQ(costTakenFrom(u"7,25"), 7.25F);
    EXPECT_EQ(costTakenFrom(u"7.25"), 7.25F);
    EXPECT_EQ(costTakenFrom(u""), 0.0F);
    EXPECT_EQ(costTakenFrom(u"dear"), 0.0F);
    EXPECT_EQ(costTakenFrom(u"1.234,5"), 1.234F);
}

TEST_F(PageLimitDialog, aMaxCostThatIsLeftAloneIsNotRoundedOrCutAtItsSeparators) {
    auto record = longJobs();
    record.maxCost = 1234.125F;
    PageLimitDlg dialog(platform_, record);
    dialog.open();
    EXPECT_EQ(dialog.maxCost.box.text(), u"1.234,12");

    dialog.okButton().userPressed();

    EXPECT_EQ(written(2).maxCost, 1234.125F);
}

TEST_F(PageLimitDialog, anEmptyPrioIsRefusedAfterAllEarlierFieldsAreTaken) {
    PageLimitDlg dialog(platform_, longJobs());
    dialog.open();
    dialog.name.userTyped(u"Longer jobs");
    dialog.maxPages.userTyped(u"200");
    dialog.enforce.userSelected(0);
    dialog.priority.userTyped(u"");
    platform_.ui.expectBox(Answer::ok, u"Prio field should not be blank!");

    dialog.okButton().userPressed();

    EXPECT_FALSE(dialog.ended());
    EXPECT_EQ(platform_.ui.boxes().back().caption, u"Required field is empty");
    EXPECT_EQ(platform_.commands(), (Strings{"ListUserMessages", "SearchQueues"}));
    auto expected = longJobs();
    expected.name = u"Longer jobs";
    expected.maxPages = 200;
    expected.enforce = 0;
    expected.priority = 0;
    EXPECT_EQ(dialog.record(), expected);
}

TEST_F(PageLimitDialog, cancelSendsNothingButMessagesMadeMeanwhileStay) {
    PageLimitDlg dialog(platform_, longJobs());
    dialog.open();
    platform_.ui.expect<NewMessageDlg>([](NewMessageDlg& made) {
        made.name.userTyped(u"Too long");
        made.okButton().userPressed();
    });
    dialog.message.list.userSelected(2);
    dialog.message.list.userSelected(0);
    dialog.message.deleteButton.userPressed();

    dialog.cancelButton().userPressed();

    EXPECT_EQ(dialog.result(), forms::idCancel);
    const auto changes = estate_.changes(2);
    ASSERT_EQ(changes.size(), 2U);
    EXPECT_TRUE(changes[0].starts_with("68: 01")) << changes[0];
    EXPECT_EQ(changes[1], "68: 03 24 00 30 30 30 30 30 30 30 30 2D 30 30 30 30 2D 34 30 30 30 2D 38 30 30 30 2D 30 30 "
                          "30 30 30 30 30 30 30 30 30 31");
}

TEST_F(PageLimitDialog, aLimitWithoutADestinationCannotBeConfirmedWhenItsMessageCouldNotBeRead) {
    auto record = longJobs();
    record.destinationId.clear();
    estate_.goOffline();
    PageLimitDlg dialog(platform_, record);

    dialog.open();

    EXPECT_EQ(dialog.name.text(), u"Long jobs");
    EXPECT_FALSE(dialog.okButton().enabled());
    dialog.userPressedDefault();
    EXPECT_EQ(dialog.record().messageId, costId);
    EXPECT_FALSE(dialog.ended());
}

TEST_F(PageLimitDialog, cannotBeConfirmedOnceItsMessagesCouldNotBeReadAgain) {
    PageLimitDlg dialog(platform_, longJobs());
    dialog.open();
    EXPECT_TRUE(dialog.okButton().enabled());
    estate_.goOffline();

    dialog.message.deleteButton.userPressed();

    EXPECT_FALSE(dialog.okButton().enabled());
}

} // namespace
