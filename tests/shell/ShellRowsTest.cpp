#include "shell/NumberColumn.h"
#include "tests/shell/ShellFixture.h"

namespace shelltest {
namespace {

// What one does with rows besides their commands.
class ShellRows : public ShellFixture {
protected:
    void SetUp() override {
        ShellFixture::SetUp();
        start();
        shell.select(a());
    }
    // Whether the number column of B holds numbers, with these rows.
    bool holdNumbers(std::vector<Estate::Entry> entries) {
        for (auto& entry : entries) {
            entry.leaf = true;
        }
        estate.below["b"] = std::move(entries);
        shell.select(b());
        shell.refresh();
        return shell::holdsNumbers(shell.pane(), 1);
    }
};

class CutWatch final : public shell::ShellObserver {
public:
    void cutChanged() override { ++count; }
    int count = 0;
};

TEST_F(ShellRows, aTableOfSomeRowsAndColumnsHasThemInTheOrderGiven) {
    shell.filter(u"a");

    const auto table = shell.table({3, 1}, {1, 0});

    ASSERT_EQ(table.rowCount, 2U);
    EXPECT_EQ(table.columns, (std::vector{shell.header().columns()[1].title, shell.header().columns()[0].title}));
    EXPECT_EQ(table.cell(0, 1), shell.pane().cell(3, 0));
    EXPECT_EQ(table.cell(1, 0), shell.pane().cell(1, 1));
}

TEST_F(ShellRows, aThirdClickOnATitleBringsTheNaturalOrderBack) {
    const auto natural = rows();
    shell.clickColumn(1);
    shell.clickColumn(1);
    EXPECT_NE(rows(), natural);

    shell.clickColumn(1);

    EXPECT_FALSE(shell.pane().sortOrder());
    EXPECT_EQ(rows(), natural);
}

TEST_F(ShellRows, aClickOnAnotherTitleStartsAscending) {
    shell.clickColumn(1);
    shell.clickColumn(1);

    shell.clickColumn(0);

    EXPECT_EQ(shell.pane().sortOrder(), (shell::SortOrder{0, true}));
}

class ShellOrders : public ShellFixture {};

TEST_F(ShellOrders, thatAHostRemembersApplyToTheListsOfTheirClass) {
    shell.setSortOrders({{"class FolderNode", {0, false}}});
    start();

    shell.select(a());

    EXPECT_EQ(shell.pane().sortOrder(), (shell::SortOrder{0, false}));
}

TEST_F(ShellRows, whatIsCutIsKnownByItsIdentityUntilItIsPasted) {
    CutWatch watch;
    observers.add(watch);
    shell.selectRow(row("a1"));
    shell.cut();
    const auto node = [&](const char* name) { return shell.pane().find(row(name))->node; };
    const auto before = node("a1");
    EXPECT_TRUE(shell.isCut(*before));
    EXPECT_FALSE(shell.isCut(*node("a2")));

    shell.selectRow(0);
    shell.refresh();

    EXPECT_NE(before, node("a1"));
    EXPECT_TRUE(shell.isCut(*node("a1")));
    EXPECT_EQ(watch.count, 1);

    shell.select(b());
    shell.paste();

    EXPECT_FALSE(shell.isCut(*before));
    EXPECT_EQ(watch.count, 2);
    observers.remove(watch);
}

TEST_F(ShellRows, whatIsCutCanBeForgottenAndPutBack) {
    shell.selectRow(row("a1"));
    shell.cut();
    const auto node = shell.cutNode();

    shell.setCutNode(nullptr);
    EXPECT_EQ(shell.cutNode(), nullptr);
    EXPECT_FALSE(shell.isCut(*node));

    shell.setCutNode(node);
    shell.select(b());
    EXPECT_TRUE(shell.canPaste());
}

TEST_F(ShellRows, aColumnWhoseCellsShowTheNumbersThatTheyAreSortedByHoldsNumbers) {
    EXPECT_TRUE(holdNumbers({{.key = "x", .name = u"x", .number = u"12", .time = 12},
                             {.key = "y", .name = u"y", .number = u"0", .time = 0}}));
}

TEST_F(ShellRows, signsDecimalsGroupsAndUnitsBelongToANumber) {
    EXPECT_TRUE(holdNumbers({{.key = "a", .name = u"a", .number = u"-3", .time = -3},
                             {.key = "b", .name = u"b", .number = u"0,75", .time = 7'500},
                             {.key = "c", .name = u"c", .number = u"12.000", .time = 12'000},
                             {.key = "d", .name = u"d", .number = u"5 MB", .time = 5'000'000}}));
}

TEST_F(ShellRows, emptyCellsLeaveAColumnOfNumbersOne) {
    EXPECT_TRUE(holdNumbers({{.key = "a", .name = u"a"}, {.key = "b", .name = u"b", .number = u"7", .time = 7}}));
    EXPECT_FALSE(holdNumbers({{.key = "c", .name = u"c"}}));
}

TEST_F(ShellRows, datesAreNoNumbers) {
    EXPECT_FALSE(holdNumbers({{.key = "a", .name = u"a", .number = u"22.11.2026", .time = 1'795'305'600'000}}));
}

TEST_F(ShellRows, digitsThatAreSortedAsTextsAreNoNumbers) {
    EXPECT_FALSE(holdNumbers({{.key = "a", .name = u"a", .number = u"12"}}));
    EXPECT_FALSE(holdNumbers(
        {{.key = "a", .name = u"a", .number = u"12", .time = 12}, {.key = "b", .name = u"b", .number = u"x"}}));
}

} // namespace
} // namespace shelltest
