#include "tests/console/ShelfNode.h"
#include "tests/support/NodeDriver.h"
#include "tests/support/TestPlatform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace console {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Which of a console's interfaces a node keeps, and who keeps a node alive.
class NodeLifetime : public testing::Test {
protected:
    NodeLifetime() { shelf->records = {{"a", u"Apples"}, {"b", u"Bolts"}}; }

    Notification from(Event event, std::intptr_t arg = 0, std::intptr_t param = 0) {
        return {.event = event, .arg = arg, .param = param, .componentData = &host};
    }
    Result expand() { return support::expand(host, *shelf, shelfRow); }

    support::TestPlatform platform;
    support::RecordingConsole host;
    std::shared_ptr<ShelfNode> shelf = std::make_shared<ShelfNode>(platform);
    const ScopeId shelfRow = host.addScopeRow(shelf);
};

TEST_F(NodeLifetime, aRefreshThroughAViewLeavesNothingOfThatViewInTheNode) {
    expand();
    auto view = std::make_unique<support::RecordingConsole>();
    shelf->Notify({.event = Event::refresh, .arg = shelfRow, .component = view.get()});
    EXPECT_THAT(view->childNames(shelfRow), ElementsAre(u"Apples", u"Bolts"));
    view.reset();
    EXPECT_EQ(shelf->console(), &host);
    EXPECT_EQ(shelf->boxes[0]->console(), &host);
}

TEST_F(NodeLifetime, thatOnlyAViewHasAskedKnowsNoConsole) {
    shelf->Notify({.event = Event::refresh, .arg = shelfRow, .component = &host});
    EXPECT_EQ(shelf->console(), nullptr);
    EXPECT_EQ(shelf->boxes[0]->console(), nullptr);
}

TEST_F(NodeLifetime, aConsoleThatLacksTreeListAndColumnsIsPutUpWith) {
    expand();
    shelf->Notify(from(Event::show, 1));
    const auto box = shelf->boxes[0];
    host.hasFaces = false;
    host.calls.clear();
    EXPECT_EQ(expand(), Result::ok);
    EXPECT_EQ(shelf->Notify(from(Event::show, 1)), Result::ok);
    EXPECT_EQ(shelf->Notify(from(Event::deleteItem)), Result::failed);
    box->removeFromTree();
    box->removeFromList();
    box->redrawRow();
    EXPECT_THAT(host.calls, IsEmpty());
    EXPECT_THAT(platform.failures(), IsEmpty());
}

TEST_F(NodeLifetime, knowsNoConsoleOnceThatWasTakenFromTheSnapIn) {
    struct ScopeSide final : IComponentData {
        IConsole* console() override { return where; }
        IConsole* where = nullptr;
    } scopeSide;
    scopeSide.where = &host;
    shelf->Notify({.event = Event::expand, .arg = 1, .param = shelfRow, .componentData = &scopeSide});
    EXPECT_EQ(shelf->console(), &host);

    scopeSide.where = nullptr;

    EXPECT_EQ(shelf->console(), nullptr);
    EXPECT_EQ(shelf->boxes[0]->console(), nullptr);
    host.calls.clear();
    shelf->boxes[0]->selectAndPress(shelfRow, {platform::Key::f5});
    EXPECT_THAT(host.calls, IsEmpty());
    EXPECT_THAT(platform.ui.presses(), IsEmpty());
}

// A console that knows its rows only by the nodes' addresses needs somebody to keep them alive.
TEST_F(NodeLifetime, endsWithTheLastRowThatShowsIt) {
    expand();
    const std::weak_ptr<BoxNode> apples = shelf->boxes[0];
    CSnapInItem* const cookie = shelf->boxes[0]->scopeFields().lParam;
    shelf->boxes.clear();

    EXPECT_EQ(cookie->displayName(), u"Apples") << "the row in the tree keeps it";
    host.DeleteItem(shelfRow, false);
    EXPECT_TRUE(apples.expired());
}

} // namespace
} // namespace console
