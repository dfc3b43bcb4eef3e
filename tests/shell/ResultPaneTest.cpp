#include "tests/shell/ResultPaneFixture.h"

#include <array>

namespace shelltest {
namespace {

TEST_F(ResultPane, redrawsARowWhereItStands) {
    const auto a = insert(u"a");
    const auto b = insert(u"b");
    pane.commit();
    events.log.clear();
    b->entry.name = u"0";
    b->setResultImage(7);

    EXPECT_EQ(pane.UpdateItem(b->resultFields().itemID), console::Result::ok);
    EXPECT_TRUE(events.log.empty()) << "before the handler has returned";
    pane.commit();

    EXPECT_EQ(events.log, (Lines{"changed 1 1"}));
    EXPECT_EQ(rows(), (Lines{"a", "0"}));
    EXPECT_EQ(pane.row(1).image, 7);
    EXPECT_EQ(pane.row(0).image, 3);
}

TEST_F(ResultPane, redrawsNoRowThatIsNotThere) {
    const auto a = insert(u"a");
    pane.commit();
    events.log.clear();

    EXPECT_EQ(pane.UpdateItem(0), console::Result::failed);
    EXPECT_EQ(pane.UpdateItem(99), console::Result::failed);
    EXPECT_EQ(pane.UpdateItem(a->resultFields().itemID), console::Result::ok);
    pane.DeleteItem(a->resultFields().itemID, 0);
    pane.commit();

    EXPECT_EQ(events.log, (Lines{"out 0 1"}));
}

TEST_F(ResultPane, redrawsARowThatAFilterHidesOnceItIsShown) {
    const auto a = insert(u"a");
    insert(u"b");
    pane.commit();
    pane.setTitles({u"Name"});
    pane.filter(u"b");
    events.log.clear();
    a->setResultImage(7);

    pane.UpdateItem(a->resultFields().itemID);
    pane.commit();

    EXPECT_TRUE(events.log.empty());
    pane.filter(u"");
    EXPECT_EQ(pane.row(0).image, 7);
}

// Dates in the last month of one year and the first months of the next, in American format.
TEST_F(ResultPane, sortsDatesByTheirTimesAndNotByTheirTexts) {
    const auto add = [&](const wire::WideString& name, const wire::WideString& date, std::optional<std::int64_t> time) {
        const auto node = std::make_shared<LeafNode>(
            platform, estate,
            Estate::Entry{.key = wire::toUtf8(name), .name = name, .number = date, .leaf = true, .time = time});
        pane.InsertItem(node->resultFields());
        return node;
    };
    const auto nodes = std::array{add(u"last", u"01/02/27", 20270102), add(u"first", u"12/01/25", 20251201),
                                  add(u"never", u"", std::nullopt), add(u"second", u"03/14/26", 20260314),
                                  add(u"before Christ", u"03/15/-44", -440315)};
    pane.commit();

    pane.sort(shell::SortOrder{1, true});
    EXPECT_EQ(rows(), (Lines{"never", "before Christ", "first", "second", "last"}));
    pane.sort(shell::SortOrder{1, false});
    EXPECT_EQ(rows(), (Lines{"last", "second", "first", "before Christ", "never"}));
}

TEST_F(ResultPane, rowsAreShownWhenTheyAreCommitted) {
    insert(u"one");
    EXPECT_EQ(pane.rowCount(), 0U);

    pane.commit();

    EXPECT_EQ(rows(), (Lines{"one"}));
    EXPECT_EQ(events.log, (Lines{"in 0 1", "changed 0 1"}));
}

TEST_F(ResultPane, oldRowsStayUntilNewOnesAreCommitted) {
    insert(u"one");
    pane.commit();

    pane.DeleteAllRsltItems();
    EXPECT_EQ(rows(), (Lines{"one"}));
    pane.commit();

    EXPECT_TRUE(rows().empty());
}

TEST_F(ResultPane, aRowKeepsTheIdThatItBrings) {
    const auto node = insert(u"one");
    const auto id = node->resultFields().itemID;
    pane.commit();
    events.log.clear();

    pane.DeleteAllRsltItems();
    pane.InsertItem(node->resultFields());
    pane.commit();

    EXPECT_EQ(node->resultFields().itemID, id);
    EXPECT_EQ(events.log, (Lines{"changed 0 1"}));
}

TEST_F(ResultPane, anIdThatIsTakenIsNotGivenAgain) {
    const auto one = insert(u"one");
    const auto two = leaf(u"two");
    two->resultFields().itemID = one->resultFields().itemID;

    pane.InsertItem(two->resultFields());

    EXPECT_NE(two->resultFields().itemID, one->resultFields().itemID);
}

TEST_F(ResultPane, aRowWithoutANodeIsRefused) {
    console::ResultItemFields row;

    EXPECT_EQ(pane.InsertItem(row), console::Result::failed);
}

TEST_F(ResultPane, oneRowCanBeRemoved) {
    insert(u"one");
    const auto two = insert(u"two");
    insert(u"three");
    pane.commit();
    events.log.clear();

    EXPECT_EQ(pane.DeleteItem(two->resultFields().itemID, 0), console::Result::ok);
    EXPECT_EQ(pane.DeleteItem(two->resultFields().itemID, 0), console::Result::failed);
    pane.commit();

    EXPECT_EQ(rows(), (Lines{"one", "three"}));
    EXPECT_EQ(events.log, (Lines{"out 2 1", "changed 0 2"}));
}

TEST_F(ResultPane, rowsAfterARemovedOneAreStillFoundByTheirIds) {
    const auto one = insert(u"one");
    const auto two = insert(u"two");
    pane.commit();

    pane.DeleteItem(one->resultFields().itemID, 0);
    pane.commit();
    pane.DeleteItem(two->resultFields().itemID, 0);
    pane.commit();

    EXPECT_EQ(pane.rowCount(), 0U);
}

TEST_F(ResultPane, withoutAnOrderNeighboursStandInNaturalOrder) {
    insert(u"P10");
    insert(u"P9");
    insert(u"P2");
    pane.commit();

    EXPECT_EQ(rows(), (Lines{"P2", "P9", "P10"}));
}

TEST_F(ResultPane, sortingIsStable) {
    insert(u"P1");
    insert(u"p01");
    insert(u"A");
    pane.commit();

    pane.sort(shell::SortOrder{0, true});
    EXPECT_EQ(rows(), (Lines{"A", "P1", "p01"}));
    pane.sort(shell::SortOrder{0, false});
    EXPECT_EQ(rows(), (Lines{"P1", "p01", "A"}));
}

TEST_F(ResultPane, sortingByAnOrderThatStandsChangesNothing) {
    insert(u"A");
    pane.commit();
    pane.sort(shell::SortOrder{0, true});
    events.log.clear();

    pane.sort(shell::SortOrder{0, true});

    EXPECT_TRUE(events.log.empty());
}

TEST_F(ResultPane, rowsAreFoundBeforeAndAfterOthersGo) {
    const auto one = insert(u"one");
    const auto two = insert(u"two");
    pane.commit();
    EXPECT_EQ(pane.find(two->resultFields().itemID)->node, two);

    pane.DeleteItem(one->resultFields().itemID, 0);
    EXPECT_EQ(pane.find(one->resultFields().itemID), nullptr);
    EXPECT_EQ(pane.find(two->resultFields().itemID)->node, two);
    pane.commit();

    EXPECT_EQ(pane.find(two->resultFields().itemID)->node, two);
}

TEST_F(ResultPane, theTopRowStaysWhileItIsThere) {
    const auto one = insert(u"one");
    pane.commit();
    pane.setTopRow(one->resultFields().itemID);

    insert(u"a");
    pane.commit();

    EXPECT_EQ(pane.topRow(), one->resultFields().itemID);
}

TEST_F(ResultPane, theNextRowTakesThePlaceOfATopRowThatGoes) {
    insert(u"a");
    const auto top = insert(u"b");
    const auto next = insert(u"c");
    pane.commit();
    pane.setTopRow(top->resultFields().itemID);

    pane.DeleteItem(top->resultFields().itemID, 0);
    pane.commit();

    EXPECT_EQ(pane.topRow(), next->resultFields().itemID);
}

TEST_F(ResultPane, theRowBeforeTakesThePlaceOfALastTopRowThatGoes) {
    const auto before = insert(u"a");
    const auto top = insert(u"b");
    pane.commit();
    pane.setTopRow(top->resultFields().itemID);

    pane.DeleteItem(top->resultFields().itemID, 0);
    pane.commit();

    EXPECT_EQ(pane.topRow(), before->resultFields().itemID);
}

TEST_F(ResultPane, nodesGoWithTheirRows) {
    insert(u"one");
    pane.commit();
    EXPECT_EQ(estate.living, 1);

    pane.DeleteAllRsltItems();
    pane.commit();

    EXPECT_EQ(estate.living, 0);
}

TEST_F(ResultPane, readsTheFilterAgainForOtherTitles) {
    insert(u"a");
    insert(u"b");
    pane.commit();
    pane.setTitles({u"Queue"});
    pane.filter(u"name:b");
    EXPECT_EQ(pane.rowCount(), 0U);

    pane.setTitles({u"Name"});

    ASSERT_EQ(pane.rowCount(), 1U);
    EXPECT_EQ(pane.cell(0, 0), u"b");
}

TEST_F(ResultPane, aHundredThousandRowsAreSortedFilteredAndReplaced) {
    std::vector<std::shared_ptr<LeafNode>> nodes;
    for (int i = 99999; i >= 0; --i) {
        nodes.push_back(insert(wire::toWide("Printer " + std::to_string(i))));
    }
    pane.commit();
    EXPECT_EQ(pane.cell(99999, 0), u"Printer 99999");
    pane.sort(shell::SortOrder{0, false});
    EXPECT_EQ(pane.cell(0, 0), u"Printer 99999");
    pane.setTitles({u"Name", u"Number"});
    pane.filter(u"\"R 123\"");
    EXPECT_EQ(pane.rowCount(), 111U);

    pane.DeleteAllRsltItems();
    for (const auto& node : nodes) {
        pane.InsertItem(node->resultFields());
    }
    pane.commit();
    EXPECT_EQ(pane.rowCount(), 111U);
}

TEST_F(ResultPane, removingAHundredThousandRowsOneByOneIsNotQuadratic) {
    std::vector<std::shared_ptr<LeafNode>> nodes;
    for (int i = 0; i < 100000; ++i) {
        nodes.push_back(insert(u"x"));
    }
    pane.commit();

    for (const auto& node : nodes) {
        pane.DeleteItem(node->resultFields().itemID, 0);
    }
    pane.commit();

    EXPECT_EQ(pane.rowCount(), 0U);
}

} // namespace
} // namespace shelltest
