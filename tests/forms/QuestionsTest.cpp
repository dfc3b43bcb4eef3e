#include "forms/Questions.h"

#include "tests/forms/SampleForm.h"
#include "tests/support/TestPlatform.h"

#include <gtest/gtest.h>

namespace forms {
namespace {

using platform::Answer;

class Questions : public testing::Test {
protected:
    support::TestPlatform platform;
    SampleForm form{platform};
};

TEST_F(Questions, beforeADeleteGoByOkAndCancel) {
    platform.ui.expectBox(Answer::ok, u"Sure?");
    platform.ui.expectBox(Answer::cancel, u"Really?");

    EXPECT_TRUE(confirmDelete(form, u"Sure?"));
    EXPECT_FALSE(confirmDelete(platform.platform(), u"Really?"));

    EXPECT_EQ(platform.ui.boxes()[0].caption, u"Warning");
    EXPECT_EQ(platform.ui.boxes()[0].style, platform::boxStyle::okCancel);
    EXPECT_EQ(platform.ui.boxes()[0].owner, platform.ui.active);
}

TEST_F(Questions, beforeADeleteNameWhatIsDeleted) {
    platform.ui.expectBox(Answer::ok, u"Delete the selected region?");

    EXPECT_TRUE(confirmDelete(form, u"Delete the selected region?", u"Berlin"));

    EXPECT_EQ(platform.ui.boxes()[0].object, u"Berlin");
}

TEST_F(Questions, aBlankFieldIsNamedAndGetsTheFocus) {
    platform.ui.expectBox(Answer::ok, u"Name field should not be blank!");

    refuseBlank(form.name, u"Name field should not be blank!");

    EXPECT_EQ(platform.ui.boxes()[0].caption, u"Required field is Empty!");
    EXPECT_EQ(platform.ui.boxes()[0].style, platform::boxStyle::iconWarning);
    EXPECT_EQ(form.focus(), &form.name);
}

TEST_F(Questions, aBoxMayHaveItsOwnCaptionAndStyle) {
    platform.ui.expectBox(Answer::ok, u"No place");

    refuseBlank(form.place, u"No place", u"Required field is empty", platform::boxStyle::ok);

    EXPECT_EQ(platform.ui.boxes()[0].caption, u"Required field is empty");
    EXPECT_EQ(platform.ui.boxes()[0].style, platform::boxStyle::ok);
}

} // namespace
} // namespace forms
