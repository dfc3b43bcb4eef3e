#include "rules/SearchDestinationDlg.h"
#include "tests/rules/PageLimitFixture.h"

namespace {

using platform::Answer;
using rules::PageLimitDlg;
using rules::SearchDestinationDlg;

// What happens to a print job beyond its limit, and where it goes.
class PageLimitAction : public PageLimitFixture {
protected:
    // The row and the text of the Action list for a number.
    std::pair<std::optional<std::size_t>, wire::WideString> actionShownFor(std::uint8_t value) {
        auto record = longJobs();
        record.action = value;
        PageLimitDlg dialog(platform_, record);
        dialog.open();
        return {dialog.action.selection(), dialog.action.selectedText()};
    }

    // What OK makes of a row of the Action list, in a limit without a destination.
    std::uint8_t actionTakenFrom(std::size_t row) {
        PageLimitDlg dialog(platform_);
        dialog.open();
        dialog.name.userTyped(u"Limit");
        dialog.action.userSelected(row);
        dialog.okButton().userPressed();
        EXPECT_TRUE(dialog.ended());
        return dialog.record().action;
    }
};

TEST_F(PageLimitAction, divertHasTheNumberFiveInTheLastRowAndThePinSixInTheOneBefore) {
    EXPECT_EQ(actionShownFor(5), (std::pair{std::optional<std::size_t>(6), wire::WideString(u"Printjob divert")}));
    EXPECT_EQ(actionShownFor(6), (std::pair{std::optional<std::size_t>(5), wire::WideString(u"Require PIN-Code")}));
    EXPECT_EQ(actionTakenFrom(5), 6);
    EXPECT_EQ(actionTakenFrom(6), 5);
}

TEST_F(PageLimitAction, allOtherActionsHaveTheNumbersOfTheirRows) {
    for (const std::size_t row : {0U, 1U, 2U, 3U, 4U}) {
        EXPECT_EQ(actionShownFor(static_cast<std::uint8_t>(row)).first, row);
    }
    for (const std::size_t row : {0U, 1U, 2U, 4U}) {
        EXPECT_EQ(actionTakenFrom(row), row);
    }
}

TEST_F(PageLimitAction, anUnknownActionIsShownAsNone) {
    EXPECT_EQ(actionShownFor(7).first, 0U);
    EXPECT_EQ(actionShownFor(255).first, 0U);
}

TEST_F(PageLimitAction, aMoveWithoutADestinationIsRefused) {
    PageLimitDlg dialog(platform_);
    dialog.open();
    dialog.name.userTyped(u"Limit");
    dialog.action.userSelected(3);
    platform_.ui.expectBox(Answer::ok, u"Destination field should not be blank, when Move action is selected!");

    dialog.okButton().userPressed();

    EXPECT_FALSE(dialog.ended());
    EXPECT_EQ(dialog.focus(), &dialog.destination);
    EXPECT_EQ(platform_.ui.boxes().back().caption, u"Required field is empty");
    EXPECT_EQ(platform_.commands(), Strings{"ListUserMessages"});
}

TEST_F(PageLimitAction, everyOtherActionGoesWithoutADestination) {
    std::size_t sent = 0;
    for (const std::size_t row : {0U, 1U, 2U, 4U, 5U, 6U}) {
        actionTakenFrom(row);
        EXPECT_EQ(written(1, ++sent).destinationId, "");
    }
}

TEST_F(PageLimitAction, everyActionButDivertKeepsADestination) {
    auto record = longJobs();
    for (record.action = 0; record.action <= 6; record.action = static_cast<std::uint8_t>(record.action + 1)) {
        if (record.action == 5) {
            continue;
        }
        EXPECT_EQ(savedAs(record).destinationId, "q1");
    }
}

TEST_F(PageLimitAction, divertNeverHasADestination) {
    auto record = longJobs();
    record.action = 5;
    EXPECT_EQ(savedAs(record).destinationId, "");

    PageLimitDlg dialog(platform_, longJobs());
    dialog.open();
    dialog.action.userSelected(6);
    platform_.ui.expect<SearchDestinationDlg>([](SearchDestinationDlg& search) {
        search.searchButton.userPressed();
        search.okButton().userPressed();
    });
    dialog.searchButton.userPressed();
    EXPECT_EQ(dialog.destination.text(), u"Office");

    dialog.okButton().userPressed();

    EXPECT_EQ(dialog.record().destinationId, "");
}

TEST_F(PageLimitAction, divertEmptiesAndDisablesTheDestinationButNotItsButton) {
    PageLimitDlg dialog(platform_, longJobs());
    dialog.open();

    dialog.action.userSelected(6);

    EXPECT_EQ(dialog.destination.text(), u"");
    EXPECT_FALSE(dialog.destination.enabled());
    EXPECT_TRUE(dialog.searchButton.enabled());

    dialog.action.userSelected(3);

    EXPECT_EQ(dialog.destination.text(), u""); // it does not come back
    EXPECT_TRUE(dialog.destination.enabled());
}

TEST_F(PageLimitAction, takesTheQueueThatASearchHasFound) {
    PageLimitDlg dialog(platform_, longJobs());
    dialog.open();
    platform_.ui.expect<SearchDestinationDlg>([](SearchDestinationDlg& search) {
        search.searchButton.userPressed();
        search.queue.userSelected(0);
        search.okButton().userPressed();
    });

    dialog.searchButton.userPressed();
    dialog.okButton().userPressed();

    EXPECT_EQ(dialog.destination.text(), u"Office");
    EXPECT_EQ(written(2).destinationId, "q2");
}

TEST_F(PageLimitAction, keepsTheDestinationWhenTheSearchIsCancelled) {
    PageLimitDlg dialog(platform_, longJobs());
    dialog.open();
    platform_.ui.expect<SearchDestinationDlg>([](SearchDestinationDlg& search) {
        search.searchButton.userPressed();
        search.cancelButton().userPressed();
    });

    dialog.searchButton.userPressed();
    dialog.okButton().userPressed();

    EXPECT_EQ(written(2).destinationId, "q1");
}

TEST_F(PageLimitAction, aQueueThatHasGoneIsNoDestination) {
    estate_.queues = {{.queueId = "q2", .queueName = u"Office"}};
    auto record = longJobs();
    record.action = 2;

    EXPECT_EQ(savedAs(record).destinationId, "");
}

TEST_F(PageLimitAction, canNotSaveALimitWhoseQueueCouldNotBeRead) {
    estate_.goOffline();
    PageLimitDlg dialog(platform_, longJobs());

    dialog.open();

    EXPECT_EQ(dialog.name.text(), u"Long jobs");
    EXPECT_FALSE(dialog.okButton().enabled());
}

} // namespace
