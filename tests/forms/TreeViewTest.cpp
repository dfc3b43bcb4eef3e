#include "tests/forms/SampleForm.h"
#include "tests/support/TestPlatform.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace forms {
namespace {

class TreeViewTest : public testing::Test {
protected:
    support::TestPlatform platform;
    SampleForm form{platform};
    TreeView& tree = form.regions;

    TreeViewTest() { form.tabs.show(1); }
};

TEST_F(TreeViewTest, itemsAreNumberedInTheOrderOfAdding) {
    EXPECT_EQ(tree.addItem({u"North", 7, {}}), 0U);
    EXPECT_EQ(tree.addItem({u"Oslo", 8, 0U}), 1U);
    EXPECT_EQ(tree.items()[1].parent, 0U);
    EXPECT_EQ(tree.items()[1].parameter, 8);
}

TEST_F(TreeViewTest, aParentHasToBeThereAlready) {
    EXPECT_THROW(tree.addItem({u"Oslo", 8, 0U}), std::out_of_range);
    EXPECT_TRUE(tree.items().empty());
}

TEST_F(TreeViewTest, oneItemAtMostIsSelected) {
    int times = 0;
    tree.onSelect = [&] { ++times; };
    tree.addItem({u"North", 7, {}});
    EXPECT_FALSE(tree.selection().has_value());
    EXPECT_FALSE(tree.userSelected(1));
    EXPECT_TRUE(tree.userSelected(0));
    EXPECT_EQ(tree.selection(), 0U);
    tree.select(4);
    EXPECT_FALSE(tree.selection().has_value());
    EXPECT_EQ(times, 1);
}

TEST_F(TreeViewTest, clearingTakesItemsAndSelection) {
    tree.addItem({u"North", 7, {}});
    tree.select(0);
    tree.clear();
    EXPECT_TRUE(tree.items().empty());
    EXPECT_FALSE(tree.selection().has_value());
}

TEST_F(TreeViewTest, itemsOfOneTextAreToldApartByTheirPaths) {
    tree.addItem({u"North", 1, {}});
    tree.addItem({u"South", 2, {}});
    tree.addItem({u"Office", 3, 0U});
    tree.addItem({u"Office", 4, 1U});
    tree.addItem({u"First floor", 5, 3U});
    EXPECT_EQ(tree.path(0), u"North");
    EXPECT_EQ(tree.path(2), u"North/Office");
    EXPECT_EQ(tree.path(3), u"South/Office");
    EXPECT_EQ(tree.path(4), u"South/Office/First floor");
    EXPECT_THROW(static_cast<void>(tree.path(5)), std::out_of_range);
}

TEST_F(TreeViewTest, slashesAndBackslashesOfATextAreMarkedInAPath) {
    tree.addItem({u"A/B", 1, {}});
    tree.addItem({u"C\\D", 2, 0U});
    EXPECT_EQ(tree.path(1), u"A\\/B/C\\\\D");
}

} // namespace
} // namespace forms
