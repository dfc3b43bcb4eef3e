#include "tests/shell/ResultPaneFixture.h"

namespace shelltest {
namespace {

TEST_F(ResultPane, rowsThatComeAgainWithOtherTextsAreSortedAnew) {
    const std::vector nodes{insert(u"P1"), insert(u"P2"), insert(u"P3")};
    pane.commit();
    nodes.front()->entry.name = u"P9";

    replaceBy(nodes);

    EXPECT_EQ(rows(), (Lines{"P2", "P3", "P9"}));
}

TEST_F(ResultPane, rowsThatComeAgainInTheirOrderAreOnlyChanged) {
    const std::vector nodes{insert(u"P3"), insert(u"P1"), insert(u"P2")};
    pane.commit();
    pane.sort(shell::SortOrder{0, false});
    events.log.clear();

    replaceBy(nodes);

    EXPECT_EQ(rows(), (Lines{"P3", "P2", "P1"}));
    EXPECT_EQ(events.log, (Lines{"changed 0 3"}));
}

TEST_F(ResultPane, newNodesOfTheSameRowsAreOnlyChangedAndShown) {
    insert(u"P3");
    insert(u"P1");
    pane.commit();
    pane.sort(shell::SortOrder{0, false});
    const std::vector fresh{leaf(u"P3"), leaf(u"P1")};
    fresh[0]->resultFields().itemID = pane.row(0).id;
    fresh[1]->resultFields().itemID = pane.row(1).id;
    events.log.clear();

    replaceBy(fresh);

    EXPECT_EQ(events.log, (Lines{"changed 0 2"}));
    EXPECT_EQ(pane.row(0).node, fresh[0]);
    EXPECT_EQ(pane.row(1).node, fresh[1]);
    EXPECT_EQ(estate.living, 2);
}

TEST_F(ResultPane, rowsOfWhichTheLastOnesDoNotComeAgainAreRemoved) {
    const auto one = insert(u"P1");
    const auto two = insert(u"P2");
    insert(u"P3");
    pane.commit();
    events.log.clear();

    replaceBy({one, two});

    EXPECT_EQ(rows(), (Lines{"P1", "P2"}));
    EXPECT_EQ(events.log, (Lines{"out 2 1", "changed 0 2"}));
    EXPECT_EQ(estate.living, 2);
}

TEST_F(ResultPane, aRowIsInsertedAmongRowsThatComeAgain) {
    const auto one = insert(u"P1");
    const auto three = insert(u"P3");
    pane.commit();
    const auto two = leaf(u"P2");
    events.log.clear();

    replaceBy({one, two, three});

    EXPECT_EQ(rows(), (Lines{"P1", "P2", "P3"}));
    EXPECT_EQ(events.log, (Lines{"in 1 1", "changed 0 3"}));
}

TEST_F(ResultPane, aRowGoesWhileOthersComeAgain) {
    const std::vector nodes{insert(u"P1"), insert(u"P2"), insert(u"P3")};
    pane.commit();
    pane.DeleteAllRsltItems();
    pane.InsertItem(nodes[0]->resultFields());
    pane.InsertItem(nodes[1]->resultFields());

    EXPECT_EQ(pane.DeleteItem(nodes[2]->resultFields().itemID, 0), console::Result::failed) << "not there yet";
    EXPECT_EQ(pane.DeleteItem(nodes[0]->resultFields().itemID, 0), console::Result::ok);
    pane.InsertItem(nodes[2]->resultFields());
    pane.commit();

    EXPECT_EQ(rows(), (Lines{"P2", "P3"}));
}

TEST_F(ResultPane, onlyRowsThatHaveComeAgainAreFound) {
    const auto one = insert(u"P1");
    const auto two = insert(u"P2");
    pane.commit();
    pane.DeleteAllRsltItems();

    pane.InsertItem(one->resultFields());

    EXPECT_EQ(pane.find(one->resultFields().itemID)->node, one);
    EXPECT_EQ(pane.find(two->resultFields().itemID), nullptr);
    EXPECT_EQ(rows(), (Lines{"P1", "P2"})) << "until they are committed";
}

TEST_F(ResultPane, aRowThatComesAgainWithAnotherImageIsShownWithIt) {
    const auto one = insert(u"P1");
    pane.commit();
    one->setResultImage(7);

    replaceBy({one});

    EXPECT_EQ(pane.row(0).image, 7);
}

TEST_F(ResultPane, aRowThatWasRedrawnIsSortedOnceItComesAgain) {
    const std::vector nodes{insert(u"P1"), insert(u"P2")};
    pane.commit();
    nodes[0]->entry.name = u"P3";
    pane.UpdateItem(nodes[0]->resultFields().itemID);
    pane.commit();
    EXPECT_EQ(rows(), (Lines{"P3", "P2"}));

    replaceBy(nodes);

    EXPECT_EQ(rows(), (Lines{"P2", "P3"}));
}

TEST_F(ResultPane, rowsThatComeAgainAreFilteredAgain) {
    const std::vector nodes{insert(u"P1"), insert(u"P2"), insert(u"X3")};
    pane.commit();
    pane.setTitles({u"Name"});
    pane.filter(u"p");
    nodes[0]->entry.name = u"X1";
    nodes[2]->entry.name = u"P3";

    replaceBy(nodes);
    EXPECT_EQ(rows(), (Lines{"P2", "P3"}));

    nodes[0]->entry.name = u"P4";
    replaceBy(nodes);
    pane.filter(u"");
    EXPECT_EQ(rows(), (Lines{"P2", "P3", "P4"}));
}

TEST_F(ResultPane, equalRowsThatComeAgainTheOtherWayRoundChangePlaces) {
    const auto first = insert(u"x");
    const auto second = insert(u"x");
    pane.commit();

    replaceBy({second, first});

    EXPECT_EQ(pane.row(0).node, second);
    EXPECT_EQ(pane.row(1).node, first);
}

TEST_F(ResultPane, rowsThatComeAgainInAnotherSequenceKeepTheirIds) {
    const auto one = insert(u"one");
    const auto two = insert(u"two");
    const auto three = insert(u"three");
    const Lines before{idOf(*one), idOf(*two), idOf(*three)};
    pane.commit();

    replaceBy({three, one, two});
    replaceBy({three, one, two});

    EXPECT_EQ((Lines{idOf(*one), idOf(*two), idOf(*three)}), before);
}

TEST_F(ResultPane, aTakenIdIsNotGivenAgainWhenRowsComeInTheirOldSequence) {
    const auto one = insert(u"one");
    const auto two = insert(u"two");
    pane.commit();
    replaceBy({two, one});
    pane.DeleteAllRsltItems();
    pane.InsertItem(two->resultFields());
    pane.InsertItem(one->resultFields());
    const auto other = leaf(u"other");
    other->resultFields().itemID = one->resultFields().itemID;

    pane.InsertItem(other->resultFields());

    EXPECT_NE(idOf(*other), idOf(*one));
    EXPECT_EQ(pane.find(one->resultFields().itemID)->node, one);
}

TEST_F(ResultPane, neighboursOfOneClassStayTogetherWhenTheyComeAgain) {
    const auto folder = std::make_shared<FolderNode>(platform, estate, Estate::Entry{.key = "folder", .name = u"m"});
    const auto first = leaf(u"z");
    const auto second = leaf(u"c");
    const auto last = leaf(u"a");
    const auto insertAll = [&] {
        pane.DeleteAllRsltItems();
        pane.InsertItem(first->resultFields());
        pane.InsertItem(second->resultFields());
        pane.InsertItem(folder->resultFields());
        pane.InsertItem(last->resultFields());
        pane.commit();
    };
    insertAll();
    EXPECT_EQ(rows(), (Lines{"c", "z", "m", "a"}));
    first->entry.name = u"b";

    insertAll();

    EXPECT_EQ(rows(), (Lines{"b", "c", "m", "a"}));
}

TEST_F(ResultPane, rowsThatAreHandedOutTwiceAreShownOnce) {
    const auto one = insert(u"one");
    const auto two = insert(u"two");
    pane.DeleteAllRsltItems();

    replaceBy({one, two});

    EXPECT_EQ(rows(), (Lines{"one", "two"}));
}

TEST_F(ResultPane, nodesThatWereHandedOutOnlyTheFirstTimeGo) {
    const auto one = insert(u"one");
    insert(u"two");

    replaceBy({one});

    EXPECT_EQ(rows(), (Lines{"one"}));
    EXPECT_EQ(estate.living, 1);
}

} // namespace
} // namespace shelltest
