#include "queues/QueueNode.h"

#include "queues/QueuePropertiesDlg.h"
#include "tests/queues/QueueTrees.h"

namespace {

using console::DataObjectType;
using console::Result;
using platform::Answer;
using platform::Key;
using queues::QueueMode;
using queues::QueueNode;
using queues::QueuePropertiesDlg;

constexpr const char16_t* question = u"Are you sure you want to delete the selected queue?";

class QueueNodes : public ::testing::Test {
protected:
    QueueNodes() { noDialogLists(estate_); }

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

TEST_F(QueueNodes, sayBesideTheColumnsWhatADigitOfTheirStatusMeans) {
    EXPECT_FALSE(makeQueue()->rowState()); // a number has its word in the column
    auto record = support::printer("q1", 5, u"Lobby");
    record.printingStatus = '3';

    const auto state = QueueNode(platform_, record, QueueMode::queue).rowState();

    ASSERT_TRUE(state);
    EXPECT_EQ(console::describe(*state), u"Connecting Printer");
}

TEST_F(QueueNodes, offerToBeEditedAndDeleted) {
    EXPECT_EQ(menuOf(console_, *makeQueue()),
              (Menu{{u"Edit Queue/Queue Properties", u"To edit queue properties", 230, 0},
                    {u"Delete Queue", u"To delete queue", 294, 0}}));
}

TEST_F(QueueNodes, offerTheSameInOtherWordsInTheFollowPrintTree) {
    EXPECT_EQ(menuOf(console_, *makeQueue(QueueMode::followPrint)),
              (Menu{{u"Edit Follow Print Queue Properties", u"To edit follow print queue properties", 230, 0},
                    {u"Delete Follow Print Queue", u"To delete follow print queue", 294, 0}}));
}

TEST_F(QueueNodes, haveAThirdPropertiesEntryThatNoMenuOffersAndThatDoesNothing) {
    for (const auto mode : {QueueMode::queue, QueueMode::followPrint}) {
        for (const auto& entry : menuOf(console_, *makeQueue(mode))) {
            EXPECT_NE(entry.id, 358);
        }
        EXPECT_EQ(makeQueue(mode)->Command(358, DataObjectType::scope), Result::notDone);
    }
    EXPECT_TRUE(platform_.commands().empty());
}

TEST_F(QueueNodes, openTheirPropertiesAndReadTheirParentAgain) {
    estate_.queues = {support::printer("q1", 5, u"Lobby")};
    const auto queue = makeQueue();
    const auto parent = console_.addScopeRow(queue);
    expand(console_, *queue, console_.addScopeRow(queue, parent));
    queue->setParentRow(parent);
    platform_.ui.expect<QueuePropertiesDlg>([](QueuePropertiesDlg& dialog) {
        EXPECT_EQ(dialog.title(), u"Lobby Properties");
        dialog.okButton().userPressed();
    });

    EXPECT_EQ(queue->Command(230, DataObjectType::scope), Result::ok);

    EXPECT_EQ(console_.calls, Strings{"SelectScopeItem " + std::to_string(parent)});
    EXPECT_EQ(platform_.ui.presses(), Presses{{Key::f5}});
}

TEST_F(QueueNodes, openedFromARowPressTabAndF5) {
    estate_.queues = {support::printer("q1", 5, u"Lobby")};
    platform_.ui.expect<QueuePropertiesDlg>([](QueuePropertiesDlg& dialog) { dialog.okButton().userPressed(); });

    makeQueue()->Command(230, DataObjectType::result);

    EXPECT_EQ(platform_.ui.presses(), (Presses{{Key::tab, Key::f5}}));
}

TEST_F(QueueNodes, pressNothingWhenTheirPropertiesAreCancelled) {
    estate_.queues = {support::printer("q1", 5, u"Lobby")};
    platform_.ui.expect<QueuePropertiesDlg>([](QueuePropertiesDlg& dialog) { dialog.cancelButton().userPressed(); });

    EXPECT_EQ(makeQueue()->Command(230, DataObjectType::scope), Result::notDone);

    EXPECT_TRUE(platform_.ui.presses().empty());
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
    EXPECT_EQ(makeQueue()->Command(293, DataObjectType::scope), Result::notDone);

    EXPECT_TRUE(platform_.commands().empty());
    EXPECT_TRUE(platform_.ui.presses().empty());
}

} // namespace
