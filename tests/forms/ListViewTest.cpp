#include "tests/forms/RecordingFormObserver.h"
#include "tests/forms/SampleForm.h"
#include "tests/support/TestPlatform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace forms {
namespace {

using testing::ElementsAre;

class ListViewTest : public testing::Test {
protected:
    support::TestPlatform platform;
    SampleForm form{platform};
    ListView& list = form.rules;

    ListViewTest() {
        list.setColumns({{u"ConfigId", 0}, {u"Driver", 120}});
        list.setRows({{{u"7", u"PCL"}, "a"}, {{u"8", u"PS"}, "b"}, {{u"9", u"XPS"}, "c"}});
    }
};

TEST_F(ListViewTest, aColumnOfZeroWidthHoldsTheProgramsOwnIds) {
    EXPECT_TRUE(list.columns()[0].hidden());
    EXPECT_FALSE(list.columns()[1].hidden());
    EXPECT_TRUE((ListColumn{u"actionId", -1}.hidden()));
    list.select(1);
    EXPECT_EQ(list.selectedRow()->cells[0], u"8");
}

TEST_F(ListViewTest, newRowsTakeTheSelectionAway) {
    list.select(1);
    list.setRows({{{u"1", u"PCL"}, "x"}});
    EXPECT_FALSE(list.selection().has_value());
    EXPECT_EQ(list.selectedRow(), nullptr);
}

TEST_F(ListViewTest, addingARowLeavesTheSelection) {
    list.select(1);
    list.addRow({{u"10", u"PDF"}, "d"});
    EXPECT_EQ(list.selection(), 1U);
    EXPECT_EQ(list.rows().size(), 4U);
}

TEST_F(ListViewTest, removingARowKeepsTheSelectionWithItsRow) {
    list.select(1);
    list.removeRow(2);
    EXPECT_EQ(list.selectedRow()->data, "b");
    list.removeRow(0);
    EXPECT_EQ(list.selection(), 0U);
    EXPECT_EQ(list.selectedRow()->data, "b");
    list.removeRow(0);
    EXPECT_FALSE(list.selection().has_value());
    EXPECT_TRUE(list.rows().empty());
}

TEST_F(ListViewTest, aRowThatIsNotThereIsAnError) {
    EXPECT_THROW(list.removeRow(3), std::out_of_range);
    EXPECT_THROW(list.setCell(3, 0, u"x"), std::out_of_range);
    EXPECT_EQ(list.rows().size(), 3U);
}

TEST_F(ListViewTest, aCellBeyondTheRowsEndMakesRoom) {
    list.setCell(0, 3, u"far");
    EXPECT_THAT(list.rows()[0].cells, ElementsAre(u"7", u"PCL", u"", u"far"));
    list.setCell(0, 1, u"PCL 6");
    EXPECT_EQ(list.rows()[0].cells[1], u"PCL 6");
}

TEST_F(ListViewTest, thePersonSelectsARowOrNone) {
    int times = 0;
    list.onSelect = [&] { ++times; };
    EXPECT_TRUE(list.userSelected(2));
    EXPECT_EQ(list.selectedRow()->data, "c");
    EXPECT_TRUE(list.userSelected(std::nullopt));
    EXPECT_EQ(list.selectedRow(), nullptr);
    EXPECT_FALSE(list.userSelected(3));
    EXPECT_EQ(times, 2);
}

TEST_F(ListViewTest, aDoubleClickSelectsFirst) {
    std::vector<std::string> events;
    list.onSelect = [&] { events.emplace_back("select"); };
    list.onDoubleClick = [&] { events.push_back("open " + list.selectedRow()->data); };
    EXPECT_TRUE(list.userDoubleClicked(1));
    EXPECT_FALSE(list.userDoubleClicked(9));
    EXPECT_THAT(events, ElementsAre("select", "open b"));
}

TEST_F(ListViewTest, theMenuOfARowSelectsTheRowFirst) {
    std::vector<std::string> events;
    list.setRowMenu({u"Open", u"Delete action"});
    list.onSelect = [&] { events.emplace_back("select"); };
    list.onRowMenu = [&](std::size_t entry) {
        events.push_back(std::to_string(entry) + " of " + list.selectedRow()->data);
    };
    EXPECT_TRUE(list.userChoseFromRowMenu(2, 1));
    EXPECT_THAT(events, ElementsAre("select", "1 of c"));
    EXPECT_THAT(list.rowMenu(), ElementsAre(u"Open", u"Delete action"));
}

TEST_F(ListViewTest, theMenuOfARowHasOnlyItsEntriesAndRows) {
    list.onSelect = [] { FAIL() << "selected"; };
    EXPECT_FALSE(list.userChoseFromRowMenu(0, 0));
    list.setRowMenu({u"Delete action"});
    EXPECT_FALSE(list.userChoseFromRowMenu(0, 1));
    EXPECT_FALSE(list.userChoseFromRowMenu(3, 0));
    list.setEnabled(false);
    EXPECT_FALSE(list.userChoseFromRowMenu(0, 0));
}

TEST_F(ListViewTest, changesReachTheHost) {
    RecordingFormObserver host;
    form.setObserver(&host);
    list.setColumns({{u"Driver"}});
    list.setRows({{{u"PCL"}, "a"}});
    list.select(0);
    list.setCell(0, 0, u"PS");
    list.removeRow(0);
    std::vector<Aspect> aspects;
    for (const auto& change : host.changes) {
        aspects.push_back(change.second);
    }
    EXPECT_THAT(aspects, ElementsAre(Aspect::columns, Aspect::items, Aspect::selection, Aspect::items, Aspect::items));
}

} // namespace
} // namespace forms
