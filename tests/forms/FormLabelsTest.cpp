#include "forms/FormLabels.h"
#include "tests/forms/SampleForm.h"
#include "tests/support/TestPlatform.h"

#include "forms/FormWalk.h"

#include <gtest/gtest.h>

namespace forms {
namespace {

class FormLabelsTest : public testing::Test {
protected:
    support::TestPlatform platform;
    SampleForm form{platform};
};

TEST_F(FormLabelsTest, theStandardButtonsHaveTheSameKeysInEveryDialog) {
    const FormLabels labels(form);
    EXPECT_EQ(labels.of(form.okButton()).marked(), u"&OK");
    EXPECT_EQ(labels.of(form.cancelButton()).marked(), u"&Cancel");
    EXPECT_EQ(labels.of(form.comment).marked(), u"Co&mment");
}

TEST_F(FormLabelsTest, pagesHaveKeysOfTheirOwn) {
    const FormLabels labels(form);
    EXPECT_EQ(labels.of(form.general).marked(), u"&General");
    EXPECT_EQ(labels.of(form.more).marked(), u"Mo&re");
}

TEST_F(FormLabelsTest, whatTakesNoKeyboardHasALabelAndNoKey) {
    const FormLabels labels(form);
    EXPECT_EQ(labels.of(form.where).marked(), u"Where");
    EXPECT_EQ(labels.of(form.version).marked(), u"");
    EXPECT_EQ(labels.of(form.times).marked(), u"Times");
}

TEST_F(FormLabelsTest, keysAreTheSameWhateverIsHiddenOrDisabledOrBehind) {
    const FormLabels before(form);
    form.name.setVisible(false);
    form.where.setVisible(false);
    form.password.setEnabled(false);
    form.tabs.show(1);
    const FormLabels after(form);
    for (const Control* control : controlsOf(form)) {
        EXPECT_EQ(after.of(*control).marked(), before.of(*control).marked());
    }
}

TEST_F(FormLabelsTest, aLabelThatChangesMovesNoKeyOfAnother) {
    FormLabels labels(form);
    std::vector<wire::WideString> before;
    for (const Control* control : controlsOf(form)) {
        before.push_back(labels.of(*control).marked());
    }
    EXPECT_EQ(labels.of(form.apply).marked(), u"App&ly");

    form.apply.setLabel(u"Name of All");
    labels.changed(form.apply);

    EXPECT_EQ(labels.of(form.apply).marked(), u"Name of A&ll");
    std::size_t place = 0;
    for (const Control* control : controlsOf(form)) {
        const wire::WideString& earlier = before[place++];
        if (control != &form.apply) {
            EXPECT_EQ(labels.of(*control).marked(), earlier);
        }
    }
}

} // namespace
} // namespace forms
