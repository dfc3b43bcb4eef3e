#include "tests/forms/RecordingFormObserver.h"
#include "tests/forms/SampleForm.h"
#include "tests/support/TestPlatform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace forms {
namespace {

using testing::ElementsAre;

class DropListTest : public testing::Test {
protected:
    support::TestPlatform platform;
    SampleForm form{platform};
    DropList list{form, u"Model"};
    DropList& sorted = form.brand;

    static std::vector<wire::WideString> texts(const DropList& of) {
        std::vector<wire::WideString> all;
        for (const auto& item : of.items()) {
            all.push_back(item.text);
        }
        return all;
    }
};

TEST_F(DropListTest, rowsStandInTheOrderOfAdding) {
    EXPECT_EQ(list.addItem(u"Zebra", "z"), 0U);
    EXPECT_EQ(list.addItem(u"Ant", "a"), 1U);
    EXPECT_THAT(texts(list), ElementsAre(u"Zebra", u"Ant"));
}

TEST_F(DropListTest, rowsOfASortedListStandInTheOrderOfTheirTextsWithoutRegardToCase) {
    EXPECT_EQ(sorted.addItem(u"kilo"), 0U);
    EXPECT_EQ(sorted.addItem(u"Alpha"), 0U);
    EXPECT_EQ(sorted.addItem(u"Zulu"), 2U);
    EXPECT_EQ(sorted.addItem(u"Mike"), 2U);
    EXPECT_THAT(texts(sorted), ElementsAre(u"Alpha", u"kilo", u"Mike", u"Zulu"));
}

TEST_F(DropListTest, equalTextsOfASortedListStandInTheOrderOfAdding) {
    sorted.addItem(u"Same", "1");
    sorted.addItem(u"SAME", "2");
    EXPECT_EQ(sorted.items()[0].data, "1");
    EXPECT_EQ(sorted.items()[1].data, "2");
}

TEST_F(DropListTest, theSelectionOfASortedListStaysWithItsRow) {
    sorted.addItem(u"Mike", "m");
    sorted.select(0);
    sorted.addItem(u"Alpha", "a");
    EXPECT_EQ(sorted.selection(), 1U);
    EXPECT_EQ(sorted.selectedData(), "m");
    sorted.addItem(u"Zulu", "z");
    EXPECT_EQ(sorted.selection(), 1U);
}

TEST_F(DropListTest, aFirstRowStandsAboveAllOthersInASortedListToo) {
    sorted.addFirst(u"Select");
    sorted.addItem(u"Zulu");
    sorted.addItem(u"Alpha");
    EXPECT_THAT(texts(sorted), ElementsAre(u"Select", u"Alpha", u"Zulu"));
    sorted.addFirst(u"");
    EXPECT_THAT(texts(sorted), ElementsAre(u"", u"Select", u"Alpha", u"Zulu"));
}

TEST_F(DropListTest, aFirstRowLeavesTheSelectionWithItsRow) {
    list.addItem(u"One", "1");
    list.select(0);
    list.addFirst(u"", "none");
    EXPECT_EQ(list.selection(), 1U);
    EXPECT_EQ(list.selectedData(), "1");
}

TEST_F(DropListTest, clearingForgetsTheFirstRowsToo) {
    sorted.addFirst(u"Select");
    sorted.clear();
    sorted.addItem(u"Zulu");
    sorted.addItem(u"Alpha");
    EXPECT_THAT(texts(sorted), ElementsAre(u"Alpha", u"Zulu"));
}

TEST_F(DropListTest, withoutASelectionTextAndDataAreEmpty) {
    list.addItem(u"One", "1");
    EXPECT_EQ(list.selectedText(), u"");
    EXPECT_EQ(list.selectedData(), "");
    EXPECT_FALSE(list.selection().has_value());
}

TEST_F(DropListTest, aRowIsSelectedByItsExactTextOrData) {
    list.addItem(u"One", "1");
    list.addItem(u"Two", "2");
    EXPECT_TRUE(list.selectText(u"Two"));
    EXPECT_EQ(list.selectedData(), "2");
    EXPECT_FALSE(list.selectText(u"two"));
    EXPECT_EQ(list.selection(), 1U);
    EXPECT_TRUE(list.selectData("1"));
    EXPECT_EQ(list.selectedText(), u"One");
    EXPECT_FALSE(list.selectData("3"));
    EXPECT_EQ(list.selection(), 0U);
}

TEST_F(DropListTest, aRowThatIsNotThereTakesTheSelectionAway) {
    list.addItem(u"One");
    list.select(0);
    list.select(1);
    EXPECT_FALSE(list.selection().has_value());
}

TEST_F(DropListTest, thePersonSelectsOnlyWhatIsThere) {
    int times = 0;
    list.onSelect = [&] { ++times; };
    list.addItem(u"One");
    EXPECT_FALSE(list.userSelected(1));
    EXPECT_TRUE(list.userSelected(0));
    EXPECT_EQ(list.selectedText(), u"One");
    list.select(std::nullopt);
    EXPECT_EQ(times, 1);
}

TEST_F(DropListTest, clearingTakesRowsAndSelection) {
    RecordingFormObserver host;
    list.addItem(u"One");
    list.select(0);
    form.setObserver(&host);
    list.clear();
    EXPECT_TRUE(list.items().empty());
    EXPECT_FALSE(list.selection().has_value());
    EXPECT_EQ(host.changes.size(), 1U);
    EXPECT_EQ(host.changes[0].second, Aspect::items);
}

} // namespace
} // namespace forms
