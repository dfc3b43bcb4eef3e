#include "queues/QueuesRootNode.h"

#include "tests/support/NodeDriver.h"
#include "tests/support/TestPlatform.h"

#include <gtest/gtest.h>

namespace {

using queues::QueuesRootNode;
using Strings = std::vector<std::string>;

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

TEST(QueuesRoot, keepsItsRowForRefreshesFromOutside) {
    support::TestPlatform platform;
    support::RecordingConsole console;
    const auto root = std::make_shared<QueuesRootNode>(platform);
    const auto row = console.addScopeRow(root);
    expand(console, *root, row);
    console.addScopeRow(root, row); // something for the refresh to remove

    QueuesRootNode::refreshInstance(console);

    EXPECT_EQ(root->scopeId(), row);
    EXPECT_EQ(console.calls, Strings{"DeleteItem 1 children"});
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
