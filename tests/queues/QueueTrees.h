#pragma once

#include "queues/FollowPrintersRootNode.h"
#include "queues/QueueRegionNode.h"
#include "queues/QueuesRootNode.h"
#include "tests/support/FakeEstate.h"
#include "tests/support/NodeDriver.h"
#include "tests/support/TestPlatform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

using Presses = std::vector<std::vector<platform::Key>>;
using Strings = std::vector<std::string>;
using Menu = std::vector<support::RecordingConsole::MenuItem>;
using Names = std::vector<wire::WideString>;
using Table = std::vector<std::vector<wire::WideString>>;

// The brands, configurations and rules that dialogs of queues list: none.
inline void noDialogLists(support::FakeEstate& estate) {
    for (const std::uint16_t opcode : std::array<std::uint16_t, 3>{4, 17, 61}) {
        estate.lists[opcode] = [](const support::Bytes&) { return std::vector<support::Bytes>(); };
    }
}

// The branches of the queues and of follow print, each in a console of its own, over a small estate:
//   North (1)
//     Harbour (2)
//     Lobby "q1", Office "q2"; follow-print queue Anywhere "f1"
//   South (3)
class QueueTrees : public ::testing::Test {
protected:
    QueueTrees() {
        estate_.regions = {support::region(1, 0, u"North"), support::region(2, 1, u"Harbour"),
                           support::region(3, 0, u"South")};
        estate_.queues = {support::printer("q1", 1, u"Lobby"), support::printer("q2", 1, u"Office")};
        estate_.followQueues = {support::printer("f1", 1, u"Anywhere")};
        noDialogLists(estate_);
    }

    static console::Result expandIn(support::RecordingConsole& console, std::u16string_view name) {
        return support::expand(console, *support::nodeOf(console, name), support::rowOf(console, name));
    }
    // Expands the root and North, in the tree of the queues and in that of follow print.
    void openNorth() {
        expandIn(console_, u"Queues");
        expandIn(console_, u"North");
        console_.calls.clear();
    }
    void openFollowNorth() {
        expandIn(followConsole_, u"Follow Print");
        expandIn(followConsole_, u"North");
        followConsole_.calls.clear();
    }
    void showNorth() {
        openNorth();
        show(console_, *support::nodeOf(console_, u"North"));
    }

    support::TestPlatform platform_;
    support::FakeEstate estate_{platform_.platform().hooks};
    support::RecordingConsole console_;
    support::RecordingConsole followConsole_;
    std::shared_ptr<queues::QueuesRootNode> root_ = std::make_shared<queues::QueuesRootNode>(platform_);
    std::shared_ptr<queues::FollowPrintersRootNode> followRoot_ =
        std::make_shared<queues::FollowPrintersRootNode>(platform_);
    console::ScopeId rootRow_ = console_.addScopeRow(root_);
    console::ScopeId followRootRow_ = followConsole_.addScopeRow(followRoot_);
};
