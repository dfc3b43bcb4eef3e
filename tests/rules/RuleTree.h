#pragma once

#include "tests/support/NodeDriver.h"
#include "tests/support/RuleEstate.h"
#include "tests/support/TestPlatform.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

using Presses = std::vector<std::vector<platform::Key>>;
using Strings = std::vector<std::string>;
using Menu = std::vector<support::RecordingConsole::MenuItem>;
using Names = std::vector<wire::WideString>;
using Table = std::vector<std::vector<wire::WideString>>;

// Nodes of the rules in a console, over an estate that the test fills.
class RuleTree : public ::testing::Test {
protected:
    // A node at the top of the tree.
    template <class Node>
    std::shared_ptr<Node> standing() {
        auto node = std::make_shared<Node>(platform_);
        node->scopeFields().ID = console_.addScopeRow(node); // as the console does when it inserts the row
        support::expand(console_, *node, node->scopeFields().ID);
        console_.calls.clear();
        return node;
    }

    support::TestPlatform platform_;
    support::RuleEstate estate_{platform_.platform().hooks};
    support::RecordingConsole console_;
};
