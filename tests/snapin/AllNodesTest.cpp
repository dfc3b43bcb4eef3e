#include "snapin/Print.h"

#include "client/rules/NewRecord.h"
#include "localprinters/LocalPrinterRegionNode.h"
#include "printers/PrinterNode.h"
#include "printers/PrinterRegionNode.h"
#include "queues/QueueRegionNode.h"
#include "rules/PageLimitersNode.h"
#include "rules/PricePlansNode.h"
#include "rules/RuleSetNode.h"
#include "rules/ShortIdNode.h"
#include "tests/support/FakeEstate.h"
#include "tests/support/NodeDriver.h"
#include "tests/support/TestPlatform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace {

using console::Result;
using Node = std::shared_ptr<console::CSnapInItem>;

constexpr std::int32_t imagesInCommonStrip = 22;
constexpr std::int32_t imagesInDriverAndShortIdStrip = 17;

template <class Record>
Record named() {
    auto record = client::newRecord<Record>();
    record.name = u"Standard";
    return record;
}

// One node of every class of the tree.
class AllNodes : public ::testing::Test {
protected:
    AllNodes() {
        const auto& root = print_.root();
        add(print_.root().shared_from_this());
        add(root.printServer().shared_from_this());
        for (const auto& branch : root.printServer().branches()) {
            add(branch);
        }
        add(std::make_shared<printers::PrinterRegionNode>(platform_, support::region(1, 0, u"North")));
        add(std::make_shared<printers::PrinterNode>(platform_, support::printer("p1", 1, u"Copier")));
        add(std::make_shared<queues::QueueNode>(platform_, support::printer("q1", 1, u"Lobby"),
                                                queues::QueueMode::queue));
        add(std::make_shared<queues::QueueNode>(platform_, support::printer("q2", 1, u"Anywhere"),
                                                queues::QueueMode::followPrint));
        add(std::make_shared<queues::QueueRegionNode>(platform_, support::region(1, 0, u"North"),
                                                      queues::QueueMode::queue));
        add(std::make_shared<queues::QueueRegionNode>(platform_, support::region(1, 0, u"North"),
                                                      queues::QueueMode::followPrint));
        add(std::make_shared<localprinters::LocalPrinterRegionNode>(platform_, support::region(1, 0, u"Home")));
        add(std::make_shared<localprinters::LocalPrinterQueueNode>(platform_, support::printer("l1", 1, u"Desk")));
        add(std::make_shared<rules::RuleSetNode>(platform_));
        add(std::make_shared<rules::PricePlansNode>(platform_));
        add(std::make_shared<rules::PageLimitersNode>(platform_));
        add(std::make_shared<rules::ShortIdNode>(platform_));
        addRow(std::make_shared<rules::RuleGroupNode>(platform_, named<protocol::RuleGroupRecord>()));
        addRow(std::make_shared<rules::PricePlanNode>(platform_, named<protocol::PricePlanRecord>()));
        addRow(std::make_shared<rules::PageLimitResultNode>(platform_, named<protocol::PageLimitRecord>()));
        addRow(std::make_shared<rules::ShortIdResultNode>(platform_, named<protocol::ShortIdRecord>()));
    }

    void add(Node node) { nodes_.push_back(std::move(node)); }
    // A node that is never in the tree.
    void addRow(const Node& node) {
        rowsOfLists_.push_back(node);
        add(node);
    }

    support::TestPlatform platform_;
    support::RecordingConsole console_;
    snapin::Print print_{platform_};
    std::vector<Node> nodes_;
    std::vector<Node> rowsOfLists_;
};

TEST_F(AllNodes, haveNames) {
    for (const Node& node : nodes_) {
        EXPECT_FALSE(node->displayName().empty()) << node->className();
        EXPECT_FALSE(node->nodeIdentity().displayName.empty()) << node->className();
        EXPECT_FALSE(node->refreshKey().empty()) << node->className();
        EXPECT_TRUE(node->className().starts_with("class ")) << node->className();
    }
}

// A node with a row in the tree takes its image from the common strip, which is that of the tree; the strip that it
// sets is for the list of its rows.
TEST_F(AllNodes, pointIntoTheirStripOfImages) {
    for (const Node& node : nodes_) {
        const auto& identity = node->nodeIdentity();
        const bool ofCommonStrip = identity.strip == console::commonStrip;
        EXPECT_TRUE(ofCommonStrip || identity.strip == console::driverAndShortIdStrip) << node->className();
        const bool standsInTree = std::ranges::find(rowsOfLists_, node) == rowsOfLists_.end();
        const auto images = ofCommonStrip || standsInTree ? imagesInCommonStrip : imagesInDriverAndShortIdStrip;
        EXPECT_GE(identity.image, 0) << node->className();
        EXPECT_LT(identity.image, images) << node->className();
        EXPECT_GE(identity.openImage, 0) << node->className();
        EXPECT_LT(identity.openImage, images) << node->className();
    }
}

TEST_F(AllNodes, haveMenusWithTextsAndUniqueIds) {
    for (const Node& node : nodes_) {
        std::set<std::int32_t> ids;
        for (const auto& entry : menuOf(console_, *node)) {
            if (entry.flags == console::menuSeparator) {
                EXPECT_EQ(entry.id, 0) << node->className();
                continue;
            }
            EXPECT_FALSE(entry.text.empty()) << node->className();
            EXPECT_FALSE(entry.statusBarText.empty()) << node->className();
            EXPECT_NE(entry.id, 0) << node->className();
            EXPECT_TRUE(ids.insert(entry.id).second) << node->className() << " has " << entry.id << " twice";
        }
    }
}

TEST_F(AllNodes, haveSeparatorsOnlyBetweenEntries) {
    for (const Node& node : nodes_) {
        bool betweenEntries = false;
        for (const auto& entry : menuOf(console_, *node)) {
            const bool isSeparator = entry.flags == console::menuSeparator;
            EXPECT_TRUE(!isSeparator || betweenEntries) << node->className();
            betweenEntries = !isSeparator;
        }
        EXPECT_TRUE(betweenEntries || console_.menu.empty()) << node->className();
    }
}

TEST_F(AllNodes, addNothingToAMenuThatDoesNotAllowIt) {
    for (const Node& node : nodes_) {
        EXPECT_EQ(node->AddMenuItems(console_, 0, console::DataObjectType::scope), Result::notDone);
    }
    EXPECT_TRUE(console_.menu.empty());
}

TEST_F(AllNodes, leaveTheTreeUntouchedForACommandThatIsNotTheirs) {
    for (const Node& node : nodes_) {
        EXPECT_EQ(node->Command(1, console::DataObjectType::scope), Result::notDone) << node->className();
    }
    EXPECT_TRUE(console_.calls.empty());
    EXPECT_TRUE(platform_.commands().empty());
}

TEST_F(AllNodes, answerTheirClassNameForTheClipboardAndNotTheirOwn) {
    const auto region = nodes_.at(10);
    std::vector<std::uint8_t> stream;

    EXPECT_EQ(region->FillData(console::ClipboardFormat::displayName, stream), Result::ok);

    EXPECT_EQ(support::toHex({stream.begin(), stream.end()}), "52 00 65 00 67 00 69 00 6F 00 6E 00 00 00");
    EXPECT_EQ(region->displayName(), u"North");
}

} // namespace
