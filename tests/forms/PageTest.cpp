#include "forms/FormWalk.h"
#include "tests/forms/RecordingFormObserver.h"
#include "tests/forms/SampleForm.h"
#include "tests/support/TestPlatform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace forms {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

class PageTest : public testing::Test {
protected:
    PageTest() { form.setObserver(&host); }

    support::TestPlatform platform;
    RecordingFormObserver host;
    SampleForm form{platform};
};

TEST_F(PageTest, aNewTitleReachesTheHostThroughItsTabControl) {
    form.more.setTitle(u"Schedule");
    form.more.setTitle(u"Schedule");

    EXPECT_EQ(form.more.title(), u"Schedule");
    EXPECT_EQ(fullName(form.regions), u"Schedule: Regions");
    EXPECT_THAT(host.changes, ElementsAre(Pair(&form.tabs, Aspect::pages)));
}

TEST_F(PageTest, aHiddenOneCannotBeShownByAnybody) {
    form.more.setVisible(false);

    EXPECT_FALSE(form.more.visible());
    EXPECT_FALSE(form.tabs.userShowed(1));
    EXPECT_THROW(form.tabs.show(1), std::out_of_range);
    EXPECT_FALSE(reveal(form.from));
    EXPECT_THAT(host.changes, ElementsAre(Pair(&form.tabs, Aspect::pages)));
}

TEST_F(PageTest, hidingTheOneInFrontBringsTheNextThere) {
    form.general.setVisible(false);

    EXPECT_EQ(form.tabs.current(), 1U);
    EXPECT_TRUE(form.more.shown());
    EXPECT_FALSE(form.apply.reachable());
    EXPECT_THAT(host.changes, ElementsAre(Pair(&form.tabs, Aspect::pages), Pair(&form.tabs, Aspect::selection)));
}

TEST_F(PageTest, hidingTheLastOneInFrontBringsTheOneBefore) {
    form.tabs.show(1);

    form.more.setVisible(false);

    EXPECT_EQ(form.tabs.current(), 0U);
    EXPECT_TRUE(form.general.shown());
}

TEST_F(PageTest, nothingIsShownWhileAllAreHidden) {
    form.more.setVisible(false);
    form.general.setVisible(false);
    EXPECT_FALSE(form.general.shown());
    EXPECT_FALSE(form.more.shown());
    EXPECT_FALSE(form.apply.reachable());

    form.more.setVisible(true);

    EXPECT_TRUE(form.more.shown());
}

TEST_F(PageTest, whatStandsOnAHiddenOneIsOfferedToNobody) {
    EXPECT_TRUE(isOffered(form.from));

    form.more.setVisible(false);
    EXPECT_FALSE(isOffered(form.from));
    EXPECT_TRUE(isOffered(form.apply));

    form.where.setVisible(false);
    EXPECT_FALSE(isOffered(form.place));
    EXPECT_TRUE(isOffered(form.name));
}

TEST_F(PageTest, isVisibleAtFirst) {
    EXPECT_TRUE(form.general.visible());
    form.general.setVisible(true);
    EXPECT_THAT(host.changes, IsEmpty());
}

} // namespace
} // namespace forms
