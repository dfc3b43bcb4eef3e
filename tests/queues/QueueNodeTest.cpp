#include "queues/QueueNode.h"

#include "tests/support/FakeEstate.h"
#include "tests/support/NodeDriver.h"
#include "tests/support/TestPlatform.h"

#include <gtest/gtest.h>

namespace {

using console::DataObjectType;
using console::Result;
using platform::Answer;
using platform::Key;
using queues::QueueMode;
using queues::QueueNode;
using Menu = std::vector<support::RecordingConsole::MenuItem>;
using Presses = std::vector<std::vector<Key>>;
using Strings = std::vector<std::string>;

constexpr const char16_t* question = u"Are you sure you want to delete the selected queue?";

class QueueNodes : public ::testing::Test {
protected:
    std::shared_ptr<QueueNode> makeQueue(QueueMode mode = QueueMode::queue) {
        auto record = support::printer("q1", 5, u"Lobby");
        record.jobs = 65535;
        record.printingStatus = 4;
        return std::make_shared<QueueNode>(platform_, record, mode);
    }

    support::TestPlatform platform_;
    support::FakeEstate estate_{platform_.platform().hooks};
    support::RecordingConsole console_;
};

TEST_F(QueueNodes, showNameJobsAndStatus) {
    const auto queue = makeQueue();

    EXPECT_EQ(queue->displayName(), u"Lobby");
    EXPECT_STREQ(wire::toUtf8(queue->GetResultPaneColInfo(0)).c_str(), "Lobby");
    EXPECT_STREQ(wire::toUtf8(queue->GetResultPaneColInfo(1)).c_str(), "65535");
    EXPECT_STREQ(wire::toUtf8(queue->GetResultPaneColInfo(2)).c_str(), "Printing");
    EXPECT_STREQ(wire::toUtf8(queue->GetResultPaneColInfo(3)).c_str(), "");
    EXPECT_EQ(queue->refreshKey(), "q1");
}

TEST_F(QueueNodes, offerDeleteQueue) {
    EXPECT_EQ(menuOf(console_, *makeQueue()), (Menu{{u"Delete Queue", u"To delete queue", 294, 0}}));
}

TEST_F(QueueNodes, offerDeleteFollowPrintQueueInTheFollowPrintTree) {
    EXPECT_EQ(menuOf(console_, *makeQueue(QueueMode::followPrint)),
              (Menu{{u"Delete Follow Print Queue", u"To delete follow print queue", 294, 0}}));
}

TEST_F(QueueNodes, ofAnyOtherModeHaveAnEmptyMenu) {
    EXPECT_TRUE(menuOf(console_, *makeQueue(static_cast<QueueMode>(2))).empty());
}

TEST_F(QueueNodes, setTheirVerbsInOrder) {
    EXPECT_EQ(verbsOf(console_, *makeQueue()),
              (Strings{"refresh on", "delete off", "copy off", "cut off", "rename off"}));
}

TEST_F(QueueNodes, areDeletedAfterTheQuestion) {
    platform_.ui.expectBox(Answer::ok, question);

    EXPECT_EQ(makeQueue()->Command(294, DataObjectType::scope), Result::ok);

    EXPECT_EQ(estate_.requests(1), Strings{"36: 02 02 00 71 31"});
    EXPECT_EQ(platform_.ui.boxes().front().caption, u"Warning");
    EXPECT_EQ(platform_.ui.boxes().front().style, platform::boxStyle::okCancel);
    EXPECT_EQ(platform_.ui.presses(), (Presses{{Key::deleteKey, Key::f5, Key::f5}}));
}

TEST_F(QueueNodes, pressDeleteAndF5WhateverTheServerReplied) {
    estate_.goOffline();
    platform_.ui.expectBox(Answer::ok, question);

    EXPECT_EQ(makeQueue()->Command(294, DataObjectType::scope), Result::notDone);

    EXPECT_EQ(platform_.ui.presses(), (Presses{{Key::deleteKey, Key::f5, Key::f5}}));
}

TEST_F(QueueNodes, stayWhenTheQuestionIsAnsweredWithCancel) {
    platform_.ui.expectBox(Answer::cancel, question);

    EXPECT_EQ(makeQueue()->Command(294, DataObjectType::scope), Result::notDone);

    EXPECT_TRUE(platform_.commands().empty());
    EXPECT_TRUE(platform_.ui.presses().empty());
}

TEST_F(QueueNodes, doNothingForANumberThatIsNotTheirs) {
    EXPECT_EQ(makeQueue()->Command(230, DataObjectType::scope), Result::notDone);

    EXPECT_TRUE(platform_.commands().empty());
    EXPECT_TRUE(platform_.ui.presses().empty());
}

} // namespace
