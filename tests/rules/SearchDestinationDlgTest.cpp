#include "rules/SearchDestinationDlg.h"

#include "tests/support/RuleEstate.h"
#include "tests/support/TestPlatform.h"

#include <gtest/gtest.h>

namespace {

using rules::SearchDestinationDlg;
using Strings = std::vector<std::string>;

class SearchDestinationDialog : public ::testing::Test {
protected:
    SearchDestinationDialog() {
        estate_.queues = {{.queueId = "q1", .queueName = u"Lobby"},
                          {.queueId = "q2", .queueName = u"Office"},
                          {.queueId = "q3", .queueName = u"Archive"}};
        dialog_.open();
    }

    support::TestPlatform platform_;
    support::RuleEstate estate_{platform_.platform().hooks};
    std::string id_ = "before";
    wire::WideString name_ = u"Before";
    SearchDestinationDlg dialog_{platform_, id_, name_};
};

TEST_F(SearchDestinationDialog, opensWithoutAskingTheServer) {
    EXPECT_EQ(dialog_.title(), u"Search Destination");
    EXPECT_TRUE(dialog_.queue.items().empty());
    EXPECT_TRUE(platform_.commands().empty());
}

TEST_F(SearchDestinationDialog, searchesForTheTermsAndListsTheLastOfTheServerFirst) {
    dialog_.searchTerms.userTyped(u"ob");

    dialog_.searchButton.userPressed();

    EXPECT_EQ(estate_.requests(1), Strings{"39: 04 00 6F 00 62 00"});
    ASSERT_EQ(dialog_.queue.items().size(), 3U);
    EXPECT_EQ(dialog_.queue.items()[0].text, u"Archive");
    EXPECT_EQ(dialog_.queue.items()[1].text, u"Office");
    EXPECT_EQ(dialog_.queue.items()[2].text, u"Lobby");
    EXPECT_EQ(dialog_.queue.selection(), 0U);
}

TEST_F(SearchDestinationDialog, searchesWithoutTermsToo) {
    dialog_.searchButton.userPressed();

    EXPECT_EQ(estate_.requests(1), Strings{"39: 00 00"});
}

TEST_F(SearchDestinationDialog, searchesWhenEnterIsPressed) {
    dialog_.userPressedDefault();

    EXPECT_FALSE(dialog_.ended());
    EXPECT_EQ(dialog_.queue.items().size(), 3U);
}

TEST_F(SearchDestinationDialog, keepsTheChosenQueueWhenEnterIsPressedThere) {
    dialog_.userPressedDefault(&dialog_.searchTerms);
    ASSERT_EQ(dialog_.queue.items().size(), 3U);
    dialog_.queue.userSelected(1);

    dialog_.userPressedDefault(&dialog_.queue);

    EXPECT_EQ(dialog_.result(), forms::idOk);
    EXPECT_EQ(name_, u"Office");
}

TEST_F(SearchDestinationDialog, aSearchReplacesWhatTheOneBeforeHasFound) {
    dialog_.searchButton.userPressed();
    estate_.queues = {{.queueId = "q4", .queueName = u"Harbour"}};

    dialog_.searchButton.userPressed();
    dialog_.okButton().userPressed();

    EXPECT_EQ(dialog_.queue.items().size(), 1U);
    EXPECT_EQ(id_, "q4");
    EXPECT_EQ(name_, u"Harbour");
}

TEST_F(SearchDestinationDialog, okHandsOverTheQueueThatIsSelected) {
    dialog_.searchButton.userPressed();
    dialog_.queue.userSelected(1);

    dialog_.okButton().userPressed();

    EXPECT_EQ(dialog_.result(), forms::idOk);
    EXPECT_EQ(id_, "q2");
    EXPECT_EQ(name_, u"Office");
}

TEST_F(SearchDestinationDialog, tellsQueuesOfOneNameApart) {
    estate_.queues = {{.queueId = "q1", .queueName = u"Lobby"}, {.queueId = "q2", .queueName = u"Lobby"}};
    dialog_.searchButton.userPressed();
    dialog_.queue.userSelected(1);

    dialog_.okButton().userPressed();

    EXPECT_EQ(id_, "q1");
}

TEST_F(SearchDestinationDialog, okWithoutAQueueTakesTheDestinationAway) {
    dialog_.okButton().userPressed();

    EXPECT_EQ(dialog_.result(), forms::idOk);
    EXPECT_EQ(id_, "");
    EXPECT_EQ(name_, u"");
}

TEST_F(SearchDestinationDialog, cancelLeavesTheDestinationAsItWas) {
    dialog_.searchButton.userPressed();

    dialog_.cancelButton().userPressed();

    EXPECT_EQ(dialog_.result(), forms::idCancel);
    EXPECT_EQ(id_, "before");
    EXPECT_EQ(name_, u"Before");
}

TEST_F(SearchDestinationDialog, findsNothingWithoutAServer) {
    dialog_.searchButton.userPressed();
    estate_.goOffline();

    dialog_.searchButton.userPressed();

    EXPECT_TRUE(dialog_.queue.items().empty());
    EXPECT_FALSE(dialog_.ended());
}

TEST_F(SearchDestinationDialog, cannotBeConfirmedAfterASearchThatFailed) {
    estate_.goOffline();

    dialog_.searchButton.userPressed();
    dialog_.okButton().userPressed();

    EXPECT_FALSE(dialog_.ended());
    EXPECT_EQ(id_, "before");
}

TEST_F(SearchDestinationDialog, doesNotSearchForTermsThatNoMessageCarries) {
    dialog_.searchTerms.userTyped(wire::WideString(32768, u'x'));
    platform_.ui.expectBox(platform::Answer::ok, u"Search terms should not be longer than 32767 characters");

    dialog_.searchButton.userPressed();

    EXPECT_TRUE(platform_.commands().empty());
    EXPECT_EQ(dialog_.focus(), &dialog_.searchTerms);
}

} // namespace
