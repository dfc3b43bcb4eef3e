#include "forms/FormWalk.h"
#include "tests/forms/SampleForm.h"
#include "tests/support/TestPlatform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace forms {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FormWalkTest : public testing::Test {
protected:
    support::TestPlatform platform;
    SampleForm form{platform};
};

TEST_F(FormWalkTest, allControlsComeInTabOrderWithTheStandardButtonsLast) {
    EXPECT_THAT(controlsOf(form), ElementsAre(&form.name, &form.password, &form.comment, &form.version, &form.where,
                                              &form.byBrand, &form.brand, &form.byName, &form.place, &form.invisible,
                                              &form.tabs, &form.rules, &form.apply, &form.times, &form.from,
                                              &form.regions, &form.okButton(), &form.cancelButton()));
}

TEST_F(FormWalkTest, aLabelIsReadWithoutAccessKeysAndBlanks) {
    EXPECT_EQ(readableLabel(u"  &Server Name       "), u"Server Name");
    EXPECT_EQ(readableLabel(u"R&&D"), u"R&D");
    EXPECT_EQ(readableLabel(u"Last &"), u"Last &");
    EXPECT_EQ(readableLabel(u"   "), u"");
}

TEST_F(FormWalkTest, controlsAreNamedWithTheirGroupAndPage) {
    EXPECT_EQ(fullName(form.name), u"Name");
    EXPECT_EQ(fullName(form.place), u"Where: Name");
    EXPECT_EQ(fullName(form.apply), u"General: Apply");
    EXPECT_EQ(fullName(form.from), u"More: Times: From");
}

TEST_F(FormWalkTest, aListThatGoesWithARadioButtonHasTheButtonsName) {
    EXPECT_EQ(fullName(form.brand), u"Where: By brand");
    EXPECT_THAT(findControls(form, u"by brand"), ElementsAre(&form.byBrand, &form.brand));
    EXPECT_EQ(findControl<DropList>(form, u"By brand"), &form.brand);
    EXPECT_EQ(findControl<RadioButton>(form, u"By brand"), &form.byBrand);
}

TEST_F(FormWalkTest, whatStandsBesideAnotherIsToldFromItsLikeByThatOnesName) {
    DropList affected(form.where, u"Affected");
    Button editAffected(form.where, u"Edit...");
    editAffected.setBeside(affected);
    DropList limits(form.where, u"Limits");
    Button editLimit(form.where, u"Edit...");
    editLimit.setBeside(limits);
    EXPECT_EQ(fullName(editLimit), u"Where: Limits: Edit...");
    EXPECT_EQ(findControl<Button>(form, u"Affected: Edit..."), &editAffected);
    EXPECT_THAT(findControls(form, u"edit..."), ElementsAre(&editAffected, &editLimit));
}

TEST_F(FormWalkTest, whatHasNoLabelIsCalledByThatOfItsNeighbour) {
    CheckBox validFor(form, u"Valid for");
    EditBox number(form, u"", {.digitsOnly = true});
    number.setBeside(validFor);
    DropList unit(form, u"");
    unit.setBeside(number);
    EXPECT_EQ(fullName(unit), u"Valid for");
    EXPECT_EQ(findControl<EditBox>(form, u"Valid for"), &number);
    EXPECT_EQ(findControl<DropList>(form, u"Valid for"), &unit);
}

TEST_F(FormWalkTest, aControlIsFoundWithoutRegardToCaseKeysAndBlanks) {
    for (const auto* name : {u"Apply", u"APPLY", u" apply ", u"&Apply", u"general: apply"}) {
        EXPECT_THAT(findControls(form, name), ElementsAre(&form.apply));
    }
    EXPECT_THAT(findControls(form, u"ok"), ElementsAre(&form.okButton()));
}

TEST_F(FormWalkTest, anAmpersandInANameIsFoundHoweverItIsWritten) {
    CheckBox research(form, u"R&&D");
    EXPECT_THAT(findControls(form, u"R&D"), ElementsAre(&research));
    EXPECT_THAT(findControls(form, u"r&&d"), ElementsAre(&research));
}

TEST_F(FormWalkTest, theNameOfGroupAndPageMayBeLeftOut) {
    EXPECT_THAT(findControls(form, u"From"), ElementsAre(&form.from));
    EXPECT_THAT(findControls(form, u"Times: From"), ElementsAre(&form.from));
    EXPECT_THAT(findControls(form, u"More: Times: From"), ElementsAre(&form.from));
}

TEST_F(FormWalkTest, theOneOutsideOfAGroupIsMeantFirst) {
    EXPECT_THAT(findControls(form, u"Name"), ElementsAre(&form.name));
    EXPECT_THAT(findControls(form, u"Where: Name"), ElementsAre(&form.place));
    EXPECT_EQ(findControl<EditBox>(form, u"name"), &form.name);
}

TEST_F(FormWalkTest, aNameThatDoesNotTellControlsApartFindsThemAll) {
    EditBox other(form.times, u"Name");
    EditBox another(form.where, u"Name");
    EXPECT_THAT(findControls(form, u"Where: Name"), ElementsAre(&form.place, &another));
    EXPECT_EQ(findControl<EditBox>(form, u"Where: Name"), nullptr);
}

TEST_F(FormWalkTest, anUnknownOrEmptyNameFindsNothing) {
    EXPECT_THAT(findControls(form, u"Nowhere"), IsEmpty());
    EXPECT_THAT(findControls(form, u""), IsEmpty());
    EXPECT_THAT(findControls(form, u" & "), IsEmpty());
    EXPECT_EQ(findControl<CheckBox>(form, u"Name"), nullptr);
}

TEST_F(FormWalkTest, aControlOnAPageBehindIsBroughtToTheFront) {
    EXPECT_TRUE(reveal(form.from));
    EXPECT_EQ(form.tabs.current(), 1U);
    EXPECT_TRUE(form.from.reachable());
    EXPECT_TRUE(reveal(form.name));
    EXPECT_EQ(form.tabs.current(), 1U);
}

TEST_F(FormWalkTest, aPageOfDisabledTabsStaysBehind) {
    form.tabs.setEnabled(false);
    EXPECT_FALSE(reveal(form.from));
    EXPECT_TRUE(reveal(form.apply));
}

} // namespace
} // namespace forms
