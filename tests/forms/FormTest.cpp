#include "tests/forms/RecordingFormObserver.h"
#include "tests/forms/SampleForm.h"
#include "tests/support/FormChecks.h"
#include "tests/support/TestPlatform.h"
#include "wire/Cancelled.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace forms {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

class FormTest : public testing::Test {
protected:
    support::TestPlatform platform;
    RecordingFormObserver host;
    SampleForm form{platform};

    FormTest() { form.setObserver(&host); }
};

TEST_F(FormTest, everyKindOfControlMakesASoundForm) {
    support::expectSound(form);
}

TEST_F(FormTest, theStandardButtonsEndItWithTheirIds) {
    EXPECT_TRUE(form.okButton().isDefault());
    EXPECT_FALSE(form.cancelButton().isDefault());
    EXPECT_TRUE(form.okButton().userPressed());
    EXPECT_TRUE(form.ended());
    EXPECT_EQ(form.result(), 1);
    SampleForm other(platform);
    EXPECT_TRUE(other.cancelButton().userPressed());
    EXPECT_EQ(other.result(), 2);
}

TEST_F(FormTest, whatWasEnteredStaysWhenItGoesOn) {
    form.open();
    form.name.userTyped(u"North");
    form.okButton().userPressed();
    form.resume();
    EXPECT_FALSE(form.ended());
    EXPECT_EQ(form.result(), idCancel);
    EXPECT_EQ(form.name.text(), u"North");
    form.okButton().userPressed();
    EXPECT_TRUE(form.ended());
    EXPECT_EQ(form.result(), idOk);
}

TEST_F(FormTest, theStandardButtonsCanHaveOtherTexts) {
    SampleForm login(platform, {.okLabel = u"Login", .cancelLabel = u"Give up"});
    EXPECT_EQ(login.okButton().label(), u"Login");
    EXPECT_EQ(login.cancelButton().label(), u"Give up");
}

TEST_F(FormTest, aStandardButtonWithoutATextIsNotThere) {
    SampleForm viewer(platform, {.okLabel = u"", .cancelLabel = u"Close"});
    EXPECT_FALSE(viewer.okButton().visible());
    EXPECT_FALSE(viewer.okButton().userPressed());
    EXPECT_TRUE(viewer.cancelButton().userPressed());
}

TEST_F(FormTest, theStandardButtonsAreNotAmongItsControls) {
    EXPECT_THAT(form.controls(), testing::Not(testing::Contains(&form.okButton())));
    EXPECT_EQ(&form.okButton().form(), &form);
}

TEST_F(FormTest, endingTwiceIsHarmless) {
    form.EndDialog(7);
    form.EndDialog(8);
    EXPECT_EQ(form.result(), 7);
    EXPECT_EQ(host.ends, 1);
}

TEST_F(FormTest, aFormThatNobodyEndedCountsAsCancelled) {
    EXPECT_FALSE(form.ended());
    EXPECT_EQ(form.result(), idCancel);
}

TEST_F(FormTest, openingFillsItOnce) {
    int times = 0;
    form.opening = [&] { ++times; };
    form.open();
    form.open();
    EXPECT_EQ(times, 1);
}

TEST_F(FormTest, aHandlerThatThrowsIsReportedAndTheFormStays) {
    form.confirming = [] { throw "Reading outside scope"; };
    form.cancelling = [] { throw std::runtime_error("no connection"); };
    form.apply.onPress = [] { throw 1; };
    EXPECT_TRUE(form.okButton().userPressed());
    form.userCancelled();
    EXPECT_TRUE(form.apply.userPressed());
    EXPECT_FALSE(form.ended());
    EXPECT_THAT(platform.failures(),
                ElementsAre("Sample: Reading outside scope", "Sample: no connection", "Sample: Unknown exception"));
}

TEST_F(FormTest, whatCouldNotBeFilledCannotBeConfirmed) {
    form.opening = [] { throw wire::Cancelled(); };
    form.open();
    EXPECT_FALSE(form.okButton().enabled());
    form.userPressedDefault();
    EXPECT_FALSE(form.ended());
    EXPECT_THAT(platform.failures(), ElementsAre("Sample: Cancelled"));
    EXPECT_TRUE(form.cancelButton().userPressed());
}

TEST_F(FormTest, whatCouldNotBeFilledCannotBeConfirmedWhateverItsHandlersEnable) {
    form.opening = [] { throw wire::Cancelled(); };
    form.name.onChange = [this] { form.okButton().setEnabled(true); };
    form.open();

    form.name.userTyped(u"Printer");

    EXPECT_FALSE(form.okButton().enabled());
    EXPECT_FALSE(form.okButton().userPressed());
    EXPECT_THAT(host.changes, ElementsAre(Pair(&form.okButton(), Aspect::enabled)));
}

TEST_F(FormTest, whatWasFilledCanBeConfirmedOnceItsHandlersEnableThat) {
    form.opening = [this] { form.okButton().setEnabled(false); };
    form.name.onChange = [this] { form.okButton().setEnabled(true); };
    form.open();

    form.name.userTyped(u"Printer");

    EXPECT_TRUE(form.okButton().userPressed());
}

TEST_F(FormTest, itsStandardButtonsAreKnownByTheirIdsAndOthersByNone) {
    EXPECT_EQ(form.okButton().resourceId(), idOk);
    EXPECT_EQ(form.cancelButton().resourceId(), idCancel);
    EXPECT_EQ(form.name.resourceId(), std::nullopt);
    form.name.setResourceId(294);
    EXPECT_EQ(form.name.resourceId(), 294);
}

TEST_F(FormTest, escapeIsTheCancelButtonAsLongAsThatCanBePressed) {
    form.cancelButton().setEnabled(false);
    form.userCancelled();
    EXPECT_FALSE(form.ended());
    form.cancelButton().setEnabled(true);
    form.userCancelled();
    EXPECT_TRUE(form.ended());
    EXPECT_EQ(form.result(), idCancel);
}

TEST_F(FormTest, escapeEndsAlsoAFormWithoutACancelButton) {
    SampleForm viewer(platform, {.cancelLabel = u""});
    viewer.userCancelled();
    EXPECT_TRUE(viewer.ended());
}

TEST_F(FormTest, enterPressesTheDefaultButtonUnlessItIsDisabled) {
    form.okButton().setEnabled(false);
    form.userPressedDefault();
    EXPECT_FALSE(form.ended());
    form.okButton().setEnabled(true);
    form.userPressedDefault();
    EXPECT_EQ(form.result(), idOk);
}

TEST_F(FormTest, aDefaultButtonOfItsOwnComesFirst) {
    Button find(form, u"Find", true);
    bool found = false;
    find.onPress = [&] { found = true; };
    form.userPressedDefault();
    EXPECT_TRUE(found);
    EXPECT_FALSE(form.ended());
}

TEST_F(FormTest, aDefaultButtonBesideABoxIsMeantForThatBoxAlone) {
    Button find(form, u"Find", true);
    find.setBeside(form.name);
    int found = 0;
    find.onPress = [&] { ++found; };
    EXPECT_EQ(form.defaultButton(&form.name), &find);
    EXPECT_EQ(form.defaultButton(&form.password), &form.okButton());

    form.userPressedDefault(&form.name);
    EXPECT_FALSE(form.ended());
    form.userPressedDefault(&form.password);

    EXPECT_EQ(found, 1);
    EXPECT_EQ(form.result(), idOk);
}

TEST_F(FormTest, nothingCanBeDoneOnceItHasEnded) {
    form.EndDialog(idOk);
    EXPECT_FALSE(form.name.userTyped(u"x"));
    EXPECT_FALSE(form.okButton().userPressed());
    form.cancelling = [] { FAIL() << "cancelled after the end"; };
    form.userCancelled();
    EXPECT_EQ(form.result(), idOk);
}

TEST_F(FormTest, aChangeOfTheTitleReachesTheHost) {
    form.setTitle(u"Add Queue");
    EXPECT_EQ(form.title(), u"Add Queue");
    EXPECT_EQ(host.titles, 1);
}

TEST_F(FormTest, theFocusIsWhereTheFormPutIt) {
    EXPECT_EQ(form.focus(), nullptr);
    form.comment.setFocus();
    EXPECT_EQ(form.focus(), &form.comment);
    EXPECT_THAT(host.changes, ElementsAre(Pair(&form.comment, Aspect::focus)));
}

TEST_F(FormTest, withoutAHostChangesAreKeptAllTheSame) {
    form.setObserver(nullptr);
    form.name.setText(u"North");
    form.setTitle(u"Other");
    form.EndDialog(idOk);
    EXPECT_EQ(form.name.text(), u"North");
    EXPECT_THAT(host.changes, IsEmpty());
}

TEST_F(FormTest, formsNestAndEachHasTheActiveWindowAsOwner) {
    SampleForm nested(platform);
    int answer = 0;
    form.apply.onPress = [&] { answer = form.runModal(nested); };
    platform.ui.expectForm([&](Form& shown) {
        EXPECT_EQ(&shown, &form);
        form.apply.userPressed();
        form.okButton().userPressed();
    });
    platform.ui.expectForm([&](Form& shown) {
        EXPECT_EQ(&shown, &nested);
        nested.EndDialog(9);
    });
    EXPECT_EQ(platform.ui.runModal(form, 5), idOk);
    EXPECT_EQ(answer, 9);
    EXPECT_THAT(platform.ui.formOwners, ElementsAre(5, 77));
}

TEST_F(FormTest, aBoxOfAFormIsOwnedByItsWindow) {
    platform.ui.expectBox(platform::Answer::yes, u"Sure?");
    EXPECT_EQ(form.messageBox(u"Sure?", u"Warning", platform::boxStyle::yesNo | platform::boxStyle::iconQuestion),
              platform::Answer::yes);
    EXPECT_EQ(platform.ui.boxes()[0].owner, 77);
    EXPECT_EQ(platform.ui.boxes()[0].caption, u"Warning");
    EXPECT_EQ(platform.ui.boxes()[0].style, 0x24U);
}

TEST_F(FormTest, aFormThatEndsWhileItOpensIsNotShown) {
    form.opening = [&] { form.EndDialog(3); };
    EXPECT_EQ(platform.ui.runModal(form, 0), 3);
}

} // namespace
} // namespace forms
