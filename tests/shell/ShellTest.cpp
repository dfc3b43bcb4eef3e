#include "tests/shell/ShellFixture.h"

#include <stdexcept>

namespace shelltest {
namespace {

class Shell : public ShellFixture {};

TEST_F(Shell, startShowsTheRootOpenAndSelected) {
    start();

    EXPECT_EQ(shell.selection(), (shell::Target{top(), 0}));
    EXPECT_TRUE(shell.tree().isOpen(top()));
    EXPECT_EQ(treeBelow(top()), (Lines{"A", "B"}));
}

TEST_F(Shell, startFailsWhenTheSnapInRefuses) {
    snapIn.initializeResult = console::Result::unexpected;

    EXPECT_FALSE(shell.start());
    EXPECT_EQ(shell.tree().root(), 0);
}

TEST_F(Shell, startHappensOnce) {
    start();

    EXPECT_FALSE(shell.start());
}

TEST_F(Shell, theSnapInIsDestroyedWithTheShell) {
    TestSnapIn other(std::make_shared<FolderNode>(platform, estate, Estate::Entry{.key = "x", .name = u"X"}));
    {
        shell::Shell local(other, tasks, observers);
        ASSERT_TRUE(local.start());
    }

    EXPECT_TRUE(other.destroyed);
}

TEST_F(Shell, aFirstSelectionExpandsThenLeavesTheOldItemThenShowsTheNew) {
    start();

    EXPECT_TRUE(shell.select(a()));

    EXPECT_EQ(snapIn.log,
              (Lines{"expand A", "select Top off", "show Top off", "add images A", "show A on", "select A on"}));
}

TEST_F(Shell, aSecondSelectionDoesNotExpandAgain) {
    start();
    shell.select(a());
    shell.select(b());
    snapIn.log.clear();

    shell.select(a());

    EXPECT_EQ(snapIn.log, (Lines{"select B off", "show B off", "add images A", "show A on", "select A on"}));
}

TEST_F(Shell, selectingWhatIsSelectedSendsNothing) {
    start();
    shell.select(a());
    snapIn.log.clear();

    EXPECT_TRUE(shell.select(a()));
    EXPECT_TRUE(snapIn.log.empty());
}

TEST_F(Shell, anUnknownItemCantBeSelected) {
    start();

    EXPECT_FALSE(shell.select(4711));
    EXPECT_EQ(shell.selection().scope, top());
}

TEST_F(Shell, selectingARowSendsSelectWithTheTypeOfARow) {
    start();
    shell.select(a());
    snapIn.log.clear();

    EXPECT_TRUE(shell.selectRow(row("a1")));

    EXPECT_EQ(snapIn.log, (Lines{"select A off", "select a1 row on"}));
}

TEST_F(Shell, selectingTheItemAgainLeavesTheRow) {
    start();
    shell.select(a());
    shell.selectRow(row("a1"));
    snapIn.log.clear();

    shell.select(a());

    EXPECT_EQ(snapIn.log, (Lines{"select a1 row off", "select A on"}));
    EXPECT_EQ(shell.selection().row, 0);
}

TEST_F(Shell, verbsBeginAnewWithEachSelection) {
    start();
    shell.select(a());
    EXPECT_TRUE(shell.canRename());

    shell.selectRow(row("a1"));

    EXPECT_FALSE(shell.canRename());
    EXPECT_TRUE(shell.canDelete());
}

TEST_F(Shell, theListHasTheColumnsAndRowsOfTheItem) {
    start();

    shell.select(a());

    ASSERT_EQ(shell.header().columns().size(), 4U);
    EXPECT_EQ(shell.header().columns()[0].title, u"Name");
    EXPECT_EQ(rows(), (Lines{"A2", "A10", "a1", "a2"}));
}

TEST_F(Shell, anItemThatAsksForItHasItsChildrenListedByTheConsole) {
    start();

    EXPECT_EQ(rows(), (Lines{"A", "B"}));
    ASSERT_EQ(shell.header().columns().size(), 1U);
    EXPECT_EQ(shell.header().columns()[0].title, u"Name");
}

TEST_F(Shell, aRowOfTheConsolesOwnListIsAScopeItem) {
    start();

    ASSERT_TRUE(shell.selectRow(row("B")));
    EXPECT_EQ(snapIn.log, (Lines{"select Top off", "select B on"}));
}

TEST_F(Shell, aDoubleClickOnARowOpensItsItem) {
    start();
    shell.select(a());

    EXPECT_TRUE(shell.doubleClick(row("A2")));

    EXPECT_EQ(shell.selection().scope, child(a(), u"A2"));
}

TEST_F(Shell, aDoubleClickInTheConsolesOwnListOpensTheItem) {
    start();

    EXPECT_TRUE(shell.doubleClick(row("B")));

    EXPECT_EQ(shell.selection().scope, b());
}

TEST_F(Shell, expandAsksTheNodeOnceOnly) {
    start();

    shell.expand(a());
    shell.collapse(a());
    shell.expand(a());

    EXPECT_EQ(estate.lists, (Lines{"a"}));
    EXPECT_TRUE(shell.tree().isOpen(a()));
}

TEST_F(Shell, collapseTellsTheNode) {
    start();
    shell.expand(a());
    snapIn.log.clear();

    EXPECT_TRUE(shell.collapse(a()));

    EXPECT_EQ(snapIn.log, (Lines{"collapse A"}));
}

TEST_F(Shell, collapsingAboveTheSelectionSelectsWhatIsCollapsed) {
    start();
    shell.expand(a());
    shell.select(child(a(), u"A2"));

    shell.collapse(a());

    EXPECT_EQ(shell.selection().scope, a());
}

TEST_F(Shell, anItemThatCouldNotBeReadKeepsItsExpanderAndIsReadAgainByIt) {
    start();
    estate.unreadable = "a";
    shell.expand(a());
    EXPECT_TRUE(shell.tree().mayHaveChildren(a()));
    EXPECT_FALSE(shell.tree().isOpen(a()));

    estate.unreadable.clear();
    shell.expand(a());

    EXPECT_EQ(treeBelow(a()).size(), 4U);
    EXPECT_TRUE(shell.tree().isOpen(a()));
    EXPECT_EQ(estate.lists, (Lines{"a", "a"}));
}

TEST_F(Shell, anItemThatCouldNotBeReadIsNotExpandedAgainByASelection) {
    start();
    estate.unreadable = "a";
    shell.select(a());
    shell.select(b());
    snapIn.log.clear();

    shell.select(a());

    EXPECT_EQ(snapIn.log, (Lines{"select B off", "show B off", "add images A", "show A on", "select A on"}));
}

TEST_F(Shell, anItemThatARefreshCouldNotReadKeepsItsExpander) {
    start();
    shell.select(a());
    estate.unreadable = "a";

    shell.refresh();
    EXPECT_TRUE(shell.tree().mayHaveChildren(a()));

    estate.unreadable.clear();
    estate.below["a"].clear();
    shell.refresh();
    EXPECT_FALSE(shell.tree().mayHaveChildren(a()));
}

TEST_F(Shell, anItemThatTurnsOutEmptyLosesItsExpander) {
    start();
    shell.expand(a());
    const auto empty = child(a(), u"A2");
    EXPECT_TRUE(shell.tree().mayHaveChildren(empty));

    shell.expand(empty);

    EXPECT_FALSE(shell.tree().mayHaveChildren(empty));
}

TEST_F(Shell, neighboursOfOneClassStandInNaturalOrder) {
    start();

    shell.expand(a());

    EXPECT_EQ(treeBelow(a()), (Lines{"A2", "A10", "a1", "a2"}));
}

TEST_F(Shell, revealOpensEverythingAbove) {
    start();
    shell.collapse(top());
    shell.select(a());

    EXPECT_TRUE(shell.reveal(child(a(), u"A2")));

    EXPECT_TRUE(shell.tree().isOpen(top()));
    EXPECT_TRUE(shell.tree().isOpen(a()));
}

TEST_F(Shell, backAndForwardGoThroughTheItemsVisited) {
    start();
    shell.select(a());
    shell.select(b());

    EXPECT_TRUE(shell.back());
    EXPECT_EQ(shell.selection().scope, a());
    EXPECT_TRUE(shell.back());
    EXPECT_EQ(shell.selection().scope, top());
    EXPECT_FALSE(shell.back());
    EXPECT_TRUE(shell.forward());
    EXPECT_EQ(shell.selection().scope, a());
}

TEST_F(Shell, findLooksOnlyAmongWhatIsLoaded) {
    start();

    EXPECT_EQ(shell.find(u"B1", false), 0);
    EXPECT_TRUE(estate.lists.empty());
}

TEST_F(Shell, findCanLoadWhatItLooksInto) {
    start();

    const auto found = shell.find(u"B1", true);

    EXPECT_EQ(shell.tree().text(found), u"b1");
    EXPECT_EQ(shell.tree().parent(found), b());
}

TEST_F(Shell, findGoesOnBelowTheSelectionAndBeginsAgainAtTheTop) {
    start();
    shell.expand(a());

    EXPECT_EQ(shell.find(u"a2", false), child(a(), u"A2"));
    shell.select(child(a(), u"A2"));
    EXPECT_EQ(shell.find(u"a2", false), child(a(), u"a2"));
    shell.select(child(a(), u"a2"));
    EXPECT_EQ(shell.find(u"a2", false), child(a(), u"A2"));
}

TEST_F(Shell, whatANodeThrowsIsToldAndDoesNotGetOut) {
    class Stops final : public shell::ShellObserver {
    public:
        void handlerStopped(std::string_view where, std::string_view what) override {
            stops.push_back(std::string(where) + ": " + std::string(what));
        }
        Lines stops;
    } stops;
    observers.add(stops);
    start();
    snapIn.throwOnShow = true;

    EXPECT_TRUE(shell.select(a()));

    EXPECT_EQ(stops.stops, (Lines{"class FolderNode: a plain text", "class FolderNode: a plain text"}));
    observers.remove(stops);
}

TEST_F(Shell, anObserverThatThrowsDisturbsNobody) {
    class Bad final : public shell::ShellObserver {
    public:
        void selectionChanged() override { throw std::runtime_error("no"); }
    } bad;
    observers.add(bad);
    start();

    EXPECT_TRUE(shell.select(a()));
    EXPECT_EQ(shell.selection().scope, a());
    observers.remove(bad);
}

TEST_F(Shell, anOperationInTheMiddleOfAnotherIsRefused) {
    start();
    shell.select(a());
    bool inside = true;
    estate.commands[1] = [&](FolderNode&, console::CommandOrigin) { inside = shell.select(b()); };

    EXPECT_TRUE(shell.invoke(1, shell.selection()));

    EXPECT_FALSE(inside);
    EXPECT_EQ(shell.selection().scope, a());
}

TEST_F(Shell, backAndForwardBringTheFilterOfAListBack) {
    start();
    shell.select(a());
    const auto all = shell.pane().rowCount();
    shell.filter(u"A2");
    const auto some = shell.pane().rowCount();
    ASSERT_LT(some, all);
    shell.select(b());
    EXPECT_TRUE(shell.pane().filterText().empty());

    EXPECT_TRUE(shell.back());
    EXPECT_EQ(shell.pane().filterText(), u"A2");
    EXPECT_EQ(shell.pane().rowCount(), some);

    EXPECT_TRUE(shell.forward());
    EXPECT_TRUE(shell.pane().filterText().empty());
}

TEST_F(Shell, anItemThatIsChosenAnewHasNoFilter) {
    start();
    shell.select(a());
    shell.filter(u"A2");
    shell.select(b());

    shell.select(a());

    EXPECT_TRUE(shell.pane().filterText().empty());
}

} // namespace
} // namespace shelltest
