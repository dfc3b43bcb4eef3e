#include "tests/shell/ShellFixture.h"

namespace shelltest {
namespace {

class ShellRefresh : public ShellFixture {
protected:
    void SetUp() override {
        ShellFixture::SetUp();
        start();
        shell.select(a());
        snapIn.log.clear();
        estate.lists.clear();
    }
};

// Records what happens to the tree.
class TreeEvents final : public shell::ShellObserver {
public:
    void scopeItemsInserted(console::ScopeId, std::size_t first, std::size_t count) override {
        log.push_back("in " + std::to_string(first) + " " + std::to_string(count));
    }
    void scopeItemsRemoved(console::ScopeId, std::size_t first, std::size_t count) override {
        log.push_back("out " + std::to_string(first) + " " + std::to_string(count));
    }
    void selectionChanged() override { log.emplace_back("selection"); }
    Lines log;
};

TEST_F(ShellRefresh, ofAnItemShowsTheListAnew) {
    estate.below["a"].push_back({.key = "l3", .name = u"a3", .leaf = true});

    EXPECT_TRUE(shell.refresh());

    EXPECT_EQ(snapIn.log, (Lines{"refresh A"}));
    EXPECT_EQ(rows(), (Lines{"A2", "A10", "a1", "a2", "a3"}));
}

TEST_F(ShellRefresh, leavesNoRowOfARecordThatIsGone) {
    estate.below["a"].pop_back();

    shell.refresh();

    EXPECT_EQ(rows(), (Lines{"A2", "A10", "a2"}));
}

TEST_F(ShellRefresh, ofARowRefreshesTheItemThatOwnsIt) {
    shell.selectRow(row("a1"));
    snapIn.log.clear();

    EXPECT_TRUE(shell.refresh());

    EXPECT_EQ(snapIn.log, (Lines{"refresh a1 row", "refresh A", "select a1 row on"}));
    EXPECT_EQ(estate.lists, (Lines{"a"}));
}

TEST_F(ShellRefresh, keepsTheSelectedRow) {
    const auto selected = row("a1");
    shell.selectRow(selected);

    shell.refresh();

    EXPECT_EQ(shell.selection().row, selected);
    EXPECT_EQ(row("a1"), selected);
}

TEST_F(ShellRefresh, goesBackToTheItemWhenTheSelectedRowIsGone) {
    shell.selectRow(row("a1"));
    estate.below["a"].pop_back();

    shell.refresh();

    EXPECT_EQ(shell.selection(), (shell::Target{a(), 0}));
    EXPECT_EQ(snapIn.log.back(), "select A on");
}

TEST_F(ShellRefresh, keepsIdsAndWhatIsOpen) {
    shell.expand(a());
    const auto inner = child(a(), u"A2");
    estate.below["a2"] = {{.key = "deep", .name = u"deep", .leaf = true}};
    shell.expand(inner);
    const auto deep = child(inner, u"deep");
    estate.lists.clear();

    shell.select(top());
    shell.refresh();

    EXPECT_EQ(child(a(), u"A2"), inner);
    EXPECT_EQ(child(inner, u"deep"), deep);
    EXPECT_TRUE(shell.tree().isOpen(inner));
    EXPECT_EQ(estate.lists, (Lines{"top", "a", "a2"}));
}

TEST_F(ShellRefresh, doesNotReadWhatIsNotOpen) {
    shell.select(top());
    estate.lists.clear();

    shell.refresh(); // A was loaded to be shown, but never opened

    EXPECT_EQ(estate.lists, (Lines{"top"}));
}

TEST_F(ShellRefresh, tellsNothingOfItemsThatCameBack) {
    shell.expand(a());
    TreeEvents events;
    observers.add(events);

    shell.select(top());
    shell.refresh();

    EXPECT_EQ(events.log, (Lines{"selection"}));
    observers.remove(events);
}

TEST_F(ShellRefresh, tellsOnlyOfItemsThatWentOrCame) {
    shell.select(top());
    TreeEvents events;
    observers.add(events);
    estate.below["top"] = {{.key = "b", .name = u"B"}, {.key = "c", .name = u"C"}};

    shell.refresh();

    EXPECT_EQ(events.log, (Lines{"out 0 1", "in 1 1"}));
    observers.remove(events);
}

TEST_F(ShellRefresh, keepsTheSelectedItemThatAnotherNodeReads) {
    shell.expand(a());
    const auto inner = child(a(), u"A2");
    shell.select(inner);
    estate.commands[1] = [&](FolderNode& node, console::CommandOrigin) {
        node.RefreshNode(node.itsConsole(), node.scopeFields().ID, node.itsConsole());
    };
    snapIn.log.clear();

    shell.invoke(1, {a(), 0});

    EXPECT_EQ(shell.selection().scope, inner);
    EXPECT_EQ(snapIn.log.back(), "select A2 on");
    EXPECT_TRUE(rows().empty()); // the rows of A2, not those that A has inserted
}

TEST_F(ShellRefresh, selectsTheNearestItemLeftWhenTheSelectedOneIsGone) {
    shell.expand(a());
    shell.select(child(a(), u"A2"));
    estate.commands[1] = [&](FolderNode& node, console::CommandOrigin) {
        node.RefreshNode(node.itsConsole(), node.scopeFields().ID, node.itsConsole());
    };
    estate.below["top"] = {{.key = "b", .name = u"B"}};

    shell.invoke(1, {top(), 0});

    EXPECT_EQ(shell.selection().scope, top());
    EXPECT_EQ(rows(), (Lines{"B"}));
}

TEST_F(ShellRefresh, rowsOfAnotherNodeDoNotStay) {
    estate.commands[1] = [&](FolderNode& node, console::CommandOrigin) {
        node.RefreshNode(node.itsConsole(), node.scopeFields().ID, node.itsConsole());
    };

    shell.invoke(1, {b(), 0}); // not loaded before, so it does not know its console yet

    EXPECT_EQ(rows(), (Lines{"A2", "A10", "a1", "a2"}));
}

TEST_F(ShellRefresh, keepsSortAndFilter) {
    shell.sort(shell::SortOrder{0, false});
    shell.filter(u"a");
    estate.below["a"].push_back({.key = "l3", .name = u"a3", .leaf = true});

    shell.refresh();

    EXPECT_EQ(rows(), (Lines{"A10", "a3", "A2", "a2", "a1"}));
}

TEST_F(ShellRefresh, thatFailsLeavesTheOldRowsAndAnEmptySubtree) {
    estate.unreadable = "a";

    shell.refresh();

    EXPECT_EQ(rows(), (Lines{"A2", "A10", "a1", "a2"}));
    EXPECT_TRUE(treeBelow(a()).empty());
}

TEST_F(ShellRefresh, twentyTimesOverKeepsNoMoreNodes) {
    shell.expand(a());
    shell.refresh();
    const int living = estate.living;

    for (int i = 0; i < 20; ++i) {
        shell.refresh();
    }

    EXPECT_EQ(estate.living, living);
    EXPECT_EQ(shell.tree().size(), 7U);
}

TEST_F(ShellRefresh, ofThirtyThousandItemsIsAsQuickAsReadingThem) {
    auto& below = estate.below["b"];
    below.clear();
    for (int i = 0; i < 30000; ++i) {
        below.push_back({.key = std::to_string(i), .name = wire::toWide("Printer " + std::to_string(i)), .leaf = true});
    }
    shell.select(b());
    shell.refresh();
    const int living = estate.living;

    shell.refresh();

    EXPECT_EQ(shell.pane().rowCount(), 30000U);
    EXPECT_EQ(shell.tree().children(b()).size(), 30000U);
    EXPECT_EQ(estate.living, living);
}

} // namespace
} // namespace shelltest
