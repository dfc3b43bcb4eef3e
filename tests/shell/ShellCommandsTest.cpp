#include "tests/shell/ShellFixture.h"

#include <sstream>

namespace shelltest {
namespace {

class ShellCommands : public ShellFixture {
protected:
    void SetUp() override {
        ShellFixture::SetUp();
        start();
        shell.select(a());
        snapIn.log.clear();
        estate.lists.clear();
    }
};

TEST_F(ShellCommands, aMenuHasTextsStatusTextsIdsAndSeparators) {
    const auto menu = shell.menu(shell.selection());

    ASSERT_EQ(menu.size(), 3U);
    EXPECT_EQ(menu[0], (shell::MenuItem{.text = u"Do it", .statusText = u"To do it", .id = 1}));
    EXPECT_TRUE(menu[1].separator);
    EXPECT_TRUE(menu[1].text.empty());
    EXPECT_EQ(menu[2].text, u"Undo it");
}

TEST_F(ShellCommands, aMenuOfARowIsThatOfItsNode) {
    EXPECT_TRUE(shell.menu({a(), row("a1")}).empty());
    EXPECT_EQ(shell.menu({a(), row("A2")}).size(), 3U);
}

TEST_F(ShellCommands, aCommandKnowsWhetherItCameFromARow) {
    std::vector<console::CommandOrigin> origins;
    estate.commands[1] = [&](FolderNode&, console::CommandOrigin origin) { origins.push_back(origin); };

    shell.invoke(1, {a(), 0});
    shell.invoke(1, {a(), row("A2")});

    EXPECT_EQ(origins, (std::vector{console::CommandOrigin::scope, console::CommandOrigin::result}));
}

TEST_F(ShellCommands, aRowThatIsNotThereTakesNoCommand) {
    EXPECT_FALSE(shell.invoke(1, {a(), 4711}));
    EXPECT_TRUE(shell.menu({a(), 4711}).empty());
}

TEST_F(ShellCommands, aPressedF5RefreshesAfterTheHandlerHasReturned) {
    Lines atReturn;
    estate.commands[1] = [&](FolderNode& node, console::CommandOrigin) {
        node.PressRefreshKey();
        atReturn = snapIn.log;
    };

    shell.invoke(1, shell.selection());

    EXPECT_TRUE(atReturn.empty());
    EXPECT_EQ(snapIn.log, (Lines{"refresh A"}));
}

TEST_F(ShellCommands, twoPressesOneAfterTheOtherAreOneRefresh) {
    estate.commands[1] = [](FolderNode& node, console::CommandOrigin) {
        node.PressRefreshKey();
        node.PressRefreshKey();
    };

    shell.invoke(1, shell.selection());

    EXPECT_EQ(estate.lists, (Lines{"a"}));
}

TEST_F(ShellCommands, keysWithoutF5AreARefreshToo) {
    estate.commands[1] = [](FolderNode& node, console::CommandOrigin) {
        node.press({platform::Key::tab, platform::Key::tab});
        node.press({platform::Key::up});
    };

    shell.invoke(1, shell.selection());

    EXPECT_EQ(snapIn.log, (Lines{"refresh A"}));
}

TEST_F(ShellCommands, aMenuShowsWhatIsCheckedAndWhatIsDisabled) {
    estate.disabled = true;

    const auto menu = shell.menu(shell.selection());

    ASSERT_EQ(menu.size(), 3U);
    EXPECT_TRUE(menu[0].disabled);
    EXPECT_FALSE(menu[0].checked);
    EXPECT_TRUE(menu[2].checked);
    EXPECT_FALSE(menu[2].disabled);
}

TEST_F(ShellCommands, aDisabledEntryIsNotInvoked) {
    int runs = 0;
    estate.commands[1] = [&](FolderNode&, console::CommandOrigin) { ++runs; };
    estate.disabled = true;

    EXPECT_FALSE(shell.invoke(1, shell.selection()));
    estate.disabled = false;
    EXPECT_TRUE(shell.invoke(1, shell.selection()));

    EXPECT_EQ(runs, 1);
}

TEST_F(ShellCommands, selectionsAndKeysAreDoneInTheOrderInWhichTheyWereAskedFor) {
    const auto other = b();
    estate.commands[1] = [&](FolderNode& node, console::CommandOrigin) {
        node.itsConsole().SelectScopeItem(other);
        node.PressRefreshKey();
        node.itsConsole().SelectScopeItem(top());
    };

    shell.invoke(1, shell.selection());

    EXPECT_EQ(estate.lists, (Lines{"b", "b"})); // expanded, then refreshed
    EXPECT_EQ(shell.selection().scope, top());
}

TEST_F(ShellCommands, selectScopeItemRefusesAnItemThatIsNotThere) {
    EXPECT_EQ(shell.SelectScopeItem(4711), console::Result::failed);
    EXPECT_TRUE(tasks.empty());
}

TEST_F(ShellCommands, aNodeMayRemoveItselfInItsOwnHandler) {
    estate.commands[1] = [&](FolderNode& node, console::CommandOrigin) {
        estate.below["top"].erase(estate.below["top"].begin());
        auto& console = node.itsConsole();
        console.nameSpace()->DeleteItem(node.scopeFields().ID, true);
        console.SelectScopeItem(node.scopeFields().relativeID);
        node.PressRefreshKey();
    };

    EXPECT_TRUE(shell.invoke(1, shell.selection()));

    EXPECT_EQ(treeBelow(top()), (Lines{"B"}));
    EXPECT_EQ(shell.selection().scope, top());
    EXPECT_EQ(rows(), (Lines{"B"}));
}

TEST_F(ShellCommands, aSelectedItemThatGoesWithoutAWordLeavesItsParentSelected) {
    estate.commands[1] = [&](FolderNode& node, console::CommandOrigin) {
        node.itsConsole().nameSpace()->DeleteItem(node.scopeFields().ID, true);
    };

    shell.invoke(1, shell.selection());

    EXPECT_EQ(shell.selection().scope, top());
    EXPECT_EQ(treeBelow(top()), (Lines{"B"}));
}

TEST_F(ShellCommands, theRootCantBeRemoved) {
    EXPECT_EQ(shell.nameSpace()->DeleteItem(top(), true), console::Result::failed);
}

TEST_F(ShellCommands, renameGoesToTheSelectedNodeWhereItIsOffered) {
    wire::WideString renamedTo;
    estate.renamed = [&](FolderNode&, const wire::WideString& name) { renamedTo = name; };

    EXPECT_TRUE(shell.rename(u"Other"));

    EXPECT_EQ(renamedTo, u"Other");
}

TEST_F(ShellCommands, renameIsRefusedWhereItIsNotOffered) {
    shell.selectRow(row("a1"));
    snapIn.log.clear();

    EXPECT_FALSE(shell.rename(u"Other"));
    EXPECT_TRUE(snapIn.log.empty());
}

TEST_F(ShellCommands, aTextSetByTheNodeIsShownUntilTheItemIsReadAgain) {
    estate.renamed = [&](FolderNode& node, const wire::WideString& name) {
        node.itsConsole().nameSpace()->SetItem(node.scopeFields().ID, name);
    };
    const auto item = a();

    shell.rename(u"Other");
    EXPECT_EQ(shell.tree().text(item), u"Other");
    shell.select(top());
    shell.refresh();

    EXPECT_EQ(shell.tree().text(item), u"A");
}

TEST_F(ShellCommands, cutAndPasteHandTheNodeOver) {
    std::string moved;
    estate.pasted = [&](FolderNode& target, console::CSnapInItem& source) {
        moved = wire::toUtf8(source.displayName()) + " to " + wire::toUtf8(target.displayName());
    };
    shell.selectRow(row("a1"));

    EXPECT_TRUE(shell.cut());
    shell.select(b());
    EXPECT_TRUE(shell.canPaste());
    EXPECT_TRUE(shell.paste());

    EXPECT_EQ(moved, "a1 to B");
    EXPECT_FALSE(shell.canPaste());
}

TEST_F(ShellCommands, pasteIsRefusedByANodeThatDoesNotTakeIt) {
    estate.pasteAllowed = false;
    shell.cut();
    shell.select(b());

    EXPECT_FALSE(shell.canPaste());
    EXPECT_FALSE(shell.paste());
}

TEST_F(ShellCommands, aNodeIsNotPastedOnItself) {
    shell.cut();

    EXPECT_FALSE(shell.canPaste());
}

TEST_F(ShellCommands, dropIsCutAndPasteAtOnce) {
    std::string moved;
    estate.pasted = [&](FolderNode&, console::CSnapInItem& source) { moved = wire::toUtf8(source.displayName()); };
    const shell::Target source{a(), row("a1")};

    EXPECT_TRUE(shell.canDrop(source, b()));
    EXPECT_TRUE(shell.drop(source, b()));

    EXPECT_EQ(moved, "a1");
}

TEST_F(ShellCommands, theDeleteVerbRemovesTheRowOfTheTree) {
    shell.select(child(a(), u"a1"));

    EXPECT_TRUE(shell.deleteItem());

    EXPECT_EQ(treeBelow(a()), (Lines{"A2", "A10", "a2"}));
    EXPECT_EQ(shell.selection().scope, a());
}

TEST_F(ShellCommands, aClickOnATitleTellsTheNodeAndSortsByTheColumn) {
    EXPECT_TRUE(shell.clickColumn(1));
    EXPECT_EQ(snapIn.log, (Lines{"column click A 1"}));
    EXPECT_EQ(rows(), (Lines{"A2", "A10", "a2", "a1"}));

    shell.clickColumn(1);
    EXPECT_EQ(rows(), (Lines{"a1", "a2", "A2", "A10"}));
}

TEST_F(ShellCommands, aTitleThatIsNotThereCantBeClicked) {
    EXPECT_FALSE(shell.clickColumn(4));
    EXPECT_FALSE(shell.clickColumn(-1));
}

TEST_F(ShellCommands, theChosenOrderComesBackWithTheClassOfTheNode) {
    shell.sort(shell::SortOrder{0, false});
    shell.select(child(a(), u"a1"));
    EXPECT_FALSE(shell.pane().sortOrder());

    shell.select(b());

    EXPECT_EQ(shell.pane().sortOrder(), (shell::SortOrder{0, false}));
}

TEST_F(ShellCommands, filterLooksIntoAllColumnsAndEndsWithTheItem) {
    shell.filter(u"30");
    EXPECT_EQ(rows(), (Lines{"a1"}));
    EXPECT_EQ(shell.pane().unfilteredCount(), 4U);

    shell.select(b());

    EXPECT_EQ(rows(), (Lines{"b1"}));
    EXPECT_TRUE(shell.pane().filterText().empty());
}

TEST_F(ShellCommands, filterAsksAColumnByItsTitle) {
    shell.filter(u"numb:>7");
    EXPECT_EQ(rows(), (Lines{"a1"}));

    shell.filter(u"-numb:>7 name:a2");
    EXPECT_EQ(rows(), (Lines{"A2", "a2"}));
}

TEST_F(ShellCommands, tellsWhatAFilterMeansForNoColumn) {
    shell.filter(u"colour:red");
    ASSERT_EQ(shell.pane().filterProblems().size(), 1U);

    shell.filter(u"");

    EXPECT_TRUE(shell.pane().filterProblems().empty());
}

TEST_F(ShellCommands, theTableIsTheListAsItStands) {
    shell.filter(u"a1");
    shell.sort(shell::SortOrder{0, false});

    const auto table = shell.table();

    ASSERT_EQ(table.rowCount, 2U);
    EXPECT_EQ(table.columns.front(), u"Name");
    EXPECT_EQ(table.cell(0, 0), u"A10");
    EXPECT_EQ(table.cell(1, 0), u"a1");
}

TEST_F(ShellCommands, whatAThreadDoesComesAfterTheHandler) {
    bool ran = false;
    bool ranInHandler = true;
    estate.commands[1] = [&](FolderNode&, console::CommandOrigin) {
        ui.startThread([&] { ran = true; });
        ranInHandler = ran;
    };

    shell.invoke(1, shell.selection());

    EXPECT_FALSE(ranInHandler);
    EXPECT_TRUE(ran);
}

TEST_F(ShellCommands, closingTheMainWindowIsAskedOfTheHost) {
    class Closes final : public shell::ShellObserver {
    public:
        void closeRequested() override { ++count; }
        int count = 0;
    } closes;
    observers.add(closes);
    ui.close(1);

    shell.drain();

    EXPECT_EQ(closes.count, 1);
    observers.remove(closes);
}

} // namespace
} // namespace shelltest
