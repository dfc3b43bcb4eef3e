#include "client/ConnectFailed.h"
#include "tests/console/ShelfNode.h"
#include "tests/support/NodeDriver.h"
#include "tests/support/TestPlatform.h"
#include "wire/Cancelled.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace console {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// A jar that may be at the back of the cupboard, where the tree does not show it.
class JarNode final : public CBaseNodeItem<JarNode> {
public:
    static constexpr NodeIdentity identity{.displayName = u"Jar"};
    JarNode(platform::Platform& platform, BoxRecord record) : CBaseNodeItem(platform), id_(std::move(record.id)) {
        setDisplayName(std::move(record.name));
    }
    std::string refreshKey() const override { return id_; }

protected:
    bool standsInTree() const override { return id_ != "back"; }

private:
    std::string id_;
};

// A cupboard with a fixed shelf, boxes, and jars, which also have a second set of nodes for the rows.
class CupboardNode final : public CBaseNodeItem<CupboardNode> {
public:
    static constexpr NodeIdentity identity{.displayName = u"Cupboard", .children = 2};
    using List = std::function<bool(std::vector<BoxRecord>&)>;

    explicit CupboardNode(platform::Platform& platform)
        : CBaseNodeItem(platform), shelves_{std::make_shared<ShelfNode>(platform)} {}

    List boxList = listing({{"a", u"Apples"}, {"b", u"Bolts"}});
    List jarList = listing({{"j", u"Jam"}, {"back", u"Mustard"}});
    std::vector<std::string> asked;
    NodeArray<BoxNode> boxes;
    NodeArray<JarNode> jars;
    NodeArray<JarNode> jarRows;

    static List listing(std::vector<BoxRecord> all) {
        return [all = std::move(all)](std::vector<BoxRecord>& records) {
            records = all;
            return true;
        };
    }

protected:
    std::vector<ChildKind> childKinds() override {
        auto jarKind = childrenAndRowsOf<BoxRecord>(jars, jarRows, [this](auto& records) {
            asked.emplace_back("jars");
            return jarList(records);
        });
        jarKind.readFirst = true;
        auto boxKind = childrenOf<BoxRecord>(boxes, [this](auto& records) {
            asked.emplace_back("boxes");
            return boxList(records);
        });
        return {fixedChildren(pointersTo(shelves_)), std::move(boxKind), std::move(jarKind)};
    }
    std::vector<NodeBase*> rows() const override { return pointersTo(boxes, jarRows); }

private:
    NodeArray<ShelfNode> shelves_;
};

class ChildKinds : public testing::Test {
protected:
    Result expand(std::intptr_t code = 1) { return support::expand(host, *cupboard, row, code); }

    support::TestPlatform platform;
    support::RecordingConsole host;
    std::shared_ptr<CupboardNode> cupboard = std::make_shared<CupboardNode>(platform);
    ScopeId row = host.addScopeRow(cupboard);
};

TEST_F(ChildKinds, standInTheirOrderWhateverIsReadFirst) {
    EXPECT_EQ(expand(), Result::ok);

    EXPECT_THAT(host.childNames(row), ElementsAre(u"Shelf", u"Apples", u"Bolts", u"Jam"));
    EXPECT_THAT(cupboard->asked, ElementsAre("jars", "boxes"));
}

TEST_F(ChildKinds, haveASecondSetOfNodesForTheRowsAlsoOfWhatTheTreeDoesNotShow) {
    expand();

    ASSERT_EQ(cupboard->jarRows.size(), 2U);
    EXPECT_NE(cupboard->jarRows[0], cupboard->jars[0]);
    EXPECT_EQ(cupboard->jarRows[1]->displayName(), u"Mustard");
}

TEST_F(ChildKinds, areNotReadByACollapse) {
    EXPECT_EQ(expand(0), Result::ok);

    EXPECT_THAT(cupboard->asked, IsEmpty());
    EXPECT_THAT(host.calls, IsEmpty());
}

TEST_F(ChildKinds, carryTheirRowsOverByKey) {
    expand();
    cupboard->jarRows[0]->resultFields().itemID = 41;
    cupboard->boxes[1]->resultFields().itemID = 42;
    cupboard->boxList = CupboardNode::listing({{"b", u"Bolts and nuts"}});

    expand(2);

    EXPECT_EQ(cupboard->boxes[0]->resultFields().itemID, 42);
    EXPECT_EQ(cupboard->jarRows[0]->resultFields().itemID, 41);
}

TEST_F(ChildKinds, standThoughAnotherKindCouldNotBeRead) {
    expand();
    cupboard->jarList = [](auto&) -> bool { throw "Reading outside scope"; };
    cupboard->boxList = CupboardNode::listing({{"n", u"Nails"}});

    EXPECT_EQ(expand(2), Result::failed);

    EXPECT_THAT(host.childNames(row), ElementsAre(u"Shelf", u"Nails"));
    EXPECT_EQ(cupboard->jars.size(), 2U) << "those of the last read are kept for the list";
    EXPECT_THAT(platform.failures(), ElementsAre("class CupboardNode: notification 32779: Reading outside scope"));
}

TEST_F(ChildKinds, areNotAskedForOnceThereIsNoAnswerNoConnectionOrThePersonGivesUp) {
    const std::vector<CupboardNode::List> endings{[](auto&) { return false; },
                                                  [](auto&) -> bool { throw client::ConnectFailed(); },
                                                  [](auto&) -> bool { throw wire::Cancelled(); }};
    std::vector<Result> results;
    for (const auto& ending : endings) {
        cupboard->jarList = ending;
        cupboard->asked.clear();
        results.push_back(expand());
        EXPECT_THAT(cupboard->asked, ElementsAre("jars"));
        EXPECT_THAT(host.childNames(row), ElementsAre(u"Shelf")) << "which is not the server's";
    }
    EXPECT_THAT(results, ElementsAre(Result::notDone, Result::failed, Result::failed));
}

} // namespace
} // namespace console
