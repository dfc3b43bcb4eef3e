#include "tests/forms/SampleForm.h"
#include "tests/support/TestPlatform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace forms {
namespace {

class TabsTest : public testing::Test {
protected:
    support::TestPlatform platform;
    SampleForm form{platform};
};

TEST_F(TabsTest, theFirstPageShowsAtFirst) {
    EXPECT_THAT(form.tabs.pages(), testing::ElementsAre(&form.general, &form.more));
    EXPECT_EQ(form.tabs.current(), 0U);
    EXPECT_TRUE(form.general.shown());
    EXPECT_FALSE(form.more.shown());
    EXPECT_EQ(form.more.title(), u"More");
}

TEST_F(TabsTest, controlsOnAPageBehindCannotBeReached) {
    EXPECT_TRUE(form.apply.reachable());
    EXPECT_FALSE(form.from.reachable());
    form.tabs.show(1);
    EXPECT_FALSE(form.apply.reachable());
    EXPECT_TRUE(form.from.reachable());
    EXPECT_FALSE(form.apply.userPressed());
}

TEST_F(TabsTest, thePersonShowsOnlyPagesThatAreThere) {
    int times = 0;
    form.tabs.onShow = [&] { ++times; };
    EXPECT_FALSE(form.tabs.userShowed(2));
    EXPECT_TRUE(form.tabs.userShowed(1));
    EXPECT_EQ(form.tabs.current(), 1U);
    EXPECT_EQ(times, 1);
}

TEST_F(TabsTest, showingAPageThatIsNotThereIsAnError) {
    EXPECT_THROW(form.tabs.show(2), std::out_of_range);
    EXPECT_EQ(form.tabs.current(), 0U);
}

TEST_F(TabsTest, disabledTabsTakeWhatStandsOnTheirPagesAlong) {
    form.tabs.setEnabled(false);
    EXPECT_TRUE(form.general.shown());
    EXPECT_FALSE(form.apply.reachable());
}

TEST_F(TabsTest, tabsInADisabledGroupAreDisabledToo) {
    Group group(form, u"Group");
    Tabs inner(group);
    Page page(inner, u"Page");
    Button button(page, u"Button");
    EXPECT_TRUE(button.reachable());
    group.setEnabled(false);
    EXPECT_FALSE(button.reachable());
}

TEST_F(TabsTest, hiddenTabsHideTheirPages) {
    form.tabs.setVisible(false);
    EXPECT_FALSE(form.apply.reachable());
}

} // namespace
} // namespace forms
