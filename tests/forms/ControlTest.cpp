#include "tests/forms/RecordingFormObserver.h"
#include "tests/forms/SampleForm.h"
#include "tests/support/TestPlatform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace forms {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

class ControlTest : public testing::Test {
protected:
    support::TestPlatform platform;
    RecordingFormObserver host;
    SampleForm form{platform};

    ControlTest() { form.setObserver(&host); }
};

TEST_F(ControlTest, controlsStandInTheOrderOfTheirMaking) {
    EXPECT_THAT(form.controls(), ElementsAre(&form.name, &form.password, &form.comment, &form.version, &form.where,
                                             &form.invisible, &form.tabs));
    EXPECT_THAT(form.where.controls(), ElementsAre(&form.byBrand, &form.brand, &form.byName, &form.place));
    EXPECT_EQ(&form.place.container(), &form.where);
    EXPECT_EQ(&form.place.form(), &form);
}

TEST_F(ControlTest, whatTheFormChangesReachesTheHost) {
    form.name.setLabel(u"Printer");
    form.name.setEnabled(false);
    form.name.setVisible(false);
    EXPECT_THAT(host.changes, ElementsAre(Pair(&form.name, Aspect::label), Pair(&form.name, Aspect::enabled),
                                          Pair(&form.name, Aspect::visible)));
    EXPECT_EQ(form.name.label(), u"Printer");
}

TEST_F(ControlTest, whatStaysTheSameIsNotReported) {
    form.name.setLabel(form.name.label());
    form.name.setEnabled(true);
    form.name.setVisible(true);
    form.name.setText(u"");
    form.invisible.setChecked(false);
    form.version.setText(u"Version 1");
    form.brand.select(std::nullopt);
    form.rules.select(5);
    form.regions.select(std::nullopt);
    form.from.setValue(std::nullopt);
    form.tabs.show(0);
    EXPECT_THAT(host.changes, IsEmpty());
}

TEST_F(ControlTest, whatThePersonDoesIsNotReportedBackToTheHost) {
    form.name.userTyped(u"North");
    form.invisible.userChecked(true);
    form.tabs.userShowed(1);
    form.from.userPicked(DateTime{});
    EXPECT_THAT(host.changes, IsEmpty());
}

TEST_F(ControlTest, aDisabledOrHiddenControlDoesNothing) {
    form.name.onChange = [] { FAIL() << "changed"; };
    form.name.onLeave = [] { FAIL() << "left"; };
    form.name.setEnabled(false);
    EXPECT_FALSE(form.name.userTyped(u"x"));
    form.name.userLeft();
    form.name.setEnabled(true);
    form.name.setVisible(false);
    EXPECT_FALSE(form.name.userTyped(u"x"));
    form.name.userLeft();
    EXPECT_EQ(form.name.text(), u"");
}

TEST_F(ControlTest, everyKindOfControlRefusesWhileItIsDisabled) {
    form.tabs.show(1);
    form.brand.addItem(u"One");
    form.regions.addItem({u"North", 1, {}});
    for (Control* control :
         std::initializer_list<Control*>{&form.password, &form.comment, &form.byName, &form.brand, &form.invisible,
                                         &form.from, &form.regions, &form.okButton()}) {
        control->setEnabled(false);
    }
    EXPECT_FALSE(form.password.userTyped(u"x"));
    EXPECT_FALSE(form.comment.userTyped(u"x"));
    EXPECT_FALSE(form.byName.userChose());
    EXPECT_FALSE(form.brand.userSelected(0));
    EXPECT_FALSE(form.invisible.userChecked(true));
    EXPECT_FALSE(form.from.userPicked(DateTime{}));
    EXPECT_FALSE(form.regions.userSelected(0));
    EXPECT_FALSE(form.okButton().userPressed());
    form.tabs.setEnabled(false);
    EXPECT_FALSE(form.tabs.userShowed(0));
}

TEST_F(ControlTest, aControlInAHiddenGroupCannotBeReached) {
    EXPECT_TRUE(form.place.reachable());
    form.where.setVisible(false);
    EXPECT_FALSE(form.place.reachable());
    EXPECT_FALSE(form.place.userTyped(u"x"));
}

TEST_F(ControlTest, aControlInADisabledGroupCannotBeReached) {
    form.where.setEnabled(false);
    EXPECT_FALSE(form.place.reachable());
    EXPECT_FALSE(form.place.userTyped(u"x"));
    EXPECT_TRUE(form.place.enabled());
    form.where.setEnabled(true);
    EXPECT_TRUE(form.place.userTyped(u"x"));
}

TEST_F(ControlTest, aDisabledGroupTakesGroupsWithinAlong) {
    Group inner(form.where, u"Inner");
    EditBox box(inner, u"Box");
    EXPECT_TRUE(box.reachable());
    form.where.setEnabled(false);
    EXPECT_FALSE(box.reachable());
}

TEST_F(ControlTest, leavingRunsItsHandler) {
    int times = 0;
    form.name.onLeave = [&] { ++times; };
    form.name.userLeft();
    EXPECT_EQ(times, 1);
}

TEST_F(ControlTest, aHandlerMayReplaceItself) {
    int times = 0;
    form.name.onChange = [&] {
        ++times;
        form.name.onChange = nullptr;
    };
    form.name.userTyped(u"a");
    form.name.userTyped(u"b");
    EXPECT_EQ(times, 1);
}

TEST_F(ControlTest, aLabelShowsText) {
    form.version.setText(u"Version 2");
    EXPECT_EQ(form.version.text(), u"Version 2");
    EXPECT_THAT(host.changes, ElementsAre(Pair(&form.version, Aspect::text)));
}

TEST_F(ControlTest, aCheckBoxKeepsWhatThePersonChecked) {
    int times = 0;
    form.invisible.onChange = [&] { ++times; };
    form.invisible.setChecked(true);
    EXPECT_EQ(times, 0);
    EXPECT_THAT(host.changes, ElementsAre(Pair(&form.invisible, Aspect::selection)));
    EXPECT_TRUE(form.invisible.userChecked(false));
    EXPECT_FALSE(form.invisible.checked());
    EXPECT_EQ(times, 1);
}

} // namespace
} // namespace forms
