#pragma once

#include "printers/PrinterRegionNode.h"
#include "printers/PrintersRootNode.h"
#include "queues/QueuesRootNode.h"
#include "tests/support/FakeEstate.h"
#include "tests/support/NodeDriver.h"
#include "tests/support/TestPlatform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

using Presses = std::vector<std::vector<platform::Key>>;
using Strings = std::vector<std::string>;
using Menu = std::vector<support::RecordingConsole::MenuItem>;
using Names = std::vector<wire::WideString>;
using Table = std::vector<std::vector<wire::WideString>>;

// The branch of the printers in a console, over a small estate:
//   North (1)
//     Harbour (2)
//     Copier "p1", Plotter "p2"
//   South (3)
class PrinterTree : public ::testing::Test {
protected:
    PrinterTree() {
        estate_.regions = {support::region(1, 0, u"North"), support::region(2, 1, u"Harbour"),
                           support::region(3, 0, u"South")};
        estate_.printers = {support::printer("p1", 1, u"Copier"), support::printer("p2", 1, u"Plotter")};
        estate_.lists[4] = [](const support::Bytes&) { return std::vector<support::Bytes>(); }; // the brands: none
    }

    // Expands a node of the tree.
    console::Result expandNode(std::u16string_view name) {
        return support::expand(console_, *support::nodeOf(console_, name), support::rowOf(console_, name));
    }

    // Expands the root and North.
    void openNorth() {
        expandNode(u"Printers");
        expandNode(u"North");
        console_.calls.clear();
    }

    // Puts the queues into the tree, with a row below them that a refresh removes.
    void watchQueues() {
        queuesRow_ = console_.addScopeRow(queues_);
        queues_->scopeFields().ID = queuesRow_;
        console_.addScopeRow(queues_, queuesRow_);
    }

    std::string queuesRefreshed() const { return "DeleteItem " + std::to_string(queuesRow_) + " children"; }

    std::string idOf(std::u16string_view name) const { return std::to_string(support::rowOf(console_, name)); }

    support::TestPlatform platform_;
    support::FakeEstate estate_{platform_.platform().hooks};
    support::RecordingConsole console_;
    std::shared_ptr<printers::PrintersRootNode> root_ = std::make_shared<printers::PrintersRootNode>(platform_);
    console::ScopeId rootRow_ = console_.addScopeRow(root_);
    std::shared_ptr<queues::QueuesRootNode> queues_ = std::make_shared<queues::QueuesRootNode>(platform_);
    console::ScopeId queuesRow_ = 0;
};
