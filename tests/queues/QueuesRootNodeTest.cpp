#include "queues/QueuesRootNode.h"

#include "tests/queues/QueueTrees.h"

namespace {

using queues::QueuesRootNode;

TEST(QueuesRoot, isReachableFromEverywhereWhileItStands) {
    support::TestPlatform platform;

    const auto root = std::make_shared<QueuesRootNode>(platform);

    EXPECT_EQ(QueuesRootNode::instance(), root.get());
}

TEST(QueuesRoot, isNotReachableOnceItIsGone) {
    support::TestPlatform platform;

    std::make_shared<QueuesRootNode>(platform).reset();

    EXPECT_EQ(QueuesRootNode::instance(), nullptr);
}

TEST(QueuesRoot, ofALaterTreeOutlivesThatOfAnEarlierOne) {
    support::TestPlatform platform;
    auto earlier = std::make_shared<QueuesRootNode>(platform);
    const auto later = std::make_shared<QueuesRootNode>(platform);

    earlier.reset();

    EXPECT_EQ(QueuesRootNode::instance(), later.get());
}

TEST_F(QueueTrees, areReadAgainWhenThePrintersChange) {
    expandIn(console_, u"Queues");
    estate_.regions.push_back(support::region(4, 0, u"West"));

    QueuesRootNode::refreshInstance(console_);

    EXPECT_EQ(root_->scopeId(), rootRow_);
    EXPECT_EQ(console_.childNames(rootRow_), (Names{u"West", u"South", u"North"}));
}

TEST(QueuesRoot, isNotMissedByARefreshOnceItIsGone) {
    support::TestPlatform platform;
    support::RecordingConsole console;
    std::make_shared<QueuesRootNode>(platform).reset();

    QueuesRootNode::refreshInstance(console);

    EXPECT_TRUE(console.calls.empty());
}

TEST(QueuesRoot, isLeftAloneWhileItHasNoRow) {
    support::TestPlatform platform;
    support::RecordingConsole console;
    const auto root = std::make_shared<QueuesRootNode>(platform);
    console.addScopeRow(root);

    QueuesRootNode::refreshInstance(console);

    EXPECT_TRUE(console.calls.empty());
}

} // namespace
