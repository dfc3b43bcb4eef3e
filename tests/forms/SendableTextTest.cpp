#include "forms/SendableText.h"

#include "tests/forms/SampleForm.h"
#include "tests/support/TestPlatform.h"

#include <gtest/gtest.h>

namespace forms {
namespace {

using platform::Answer;

class SendableText : public testing::Test {
protected:
    void expectConfirmed() {
        EXPECT_TRUE(form.okButton().userPressed());
        EXPECT_TRUE(form.ended());
    }

    void expectRefused(const wire::WideString& why, const Control& field) {
        platform.ui.expectBox(Answer::ok, why);
        form.confirming = [] { ADD_FAILURE() << "confirmed"; };
        EXPECT_TRUE(form.okButton().userPressed());
        EXPECT_FALSE(form.ended());
        EXPECT_EQ(form.focus(), &field);
        EXPECT_EQ(platform.ui.boxes().back().caption, u"Warning");
        EXPECT_EQ(platform.ui.boxes().back().style, platform::boxStyle::iconWarning);
    }

    support::TestPlatform platform;
    SampleForm form{platform};
    EditBox port{form, u"&Port  ", {.codePageBytes = 6}};
};

TEST_F(SendableText, isAsLongAsTheLengthBeforeItCanTell) {
    form.name.userTyped(wire::WideString(32767, u'x'));

    expectConfirmed();
}

TEST_F(SendableText, oneUnitMoreIsRefusedAndNothingOfItLost) {
    form.name.userTyped(wire::WideString(32768, u'x'));

    expectRefused(u"Name should not be longer than 32767 characters", form.name);

    EXPECT_EQ(form.name.text().size(), 32768U);
}

TEST_F(SendableText, theFirstOfSeveralThatAreTooLongIsNamed) {
    form.password.userTyped(wire::WideString(40000, u'x'));
    form.name.userTyped(wire::WideString(40000, u'x'));

    expectRefused(u"Name should not be longer than 32767 characters", form.name);
}

TEST_F(SendableText, isCountedInBytesWhereItGoesOutInTheCodePage) {
    port.userTyped(u"ÄÄÄ");
    EXPECT_TRUE(canSendTexts(form));

    port.userTyped(u"ÄÄÄx");
    expectRefused(u"Port should not be longer than 6 bytes", port);
}

TEST_F(SendableText, thatNobodyCanTypeIntoNowIsTestedTooSinceTheFormMaySendIt) {
    form.comment.setText(wire::WideString(32768, u'x'));
    form.comment.setEnabled(false);

    expectRefused(u"Comment should not be longer than 32767 characters", form.comment);
}

TEST_F(SendableText, onAPageBehindIsBroughtToTheFront) {
    EditBox address(form.more, u"Address");
    address.setText(wire::WideString(32768, u'x'));

    expectRefused(u"Address should not be longer than 32767 characters", address);

    EXPECT_EQ(form.tabs.current(), 1U);
}

TEST_F(SendableText, withoutALabelIsCalledLikeWhatItStandsBeside) {
    EditBox amount(form, u"");
    amount.setBeside(form.invisible);
    amount.setText(wire::WideString(32768, u'x'));

    expectRefused(u"Invisible should not be longer than 32767 characters", amount);
}

TEST_F(SendableText, ofAListIsTestedByTheFormItself) {
    form.brand.addItem(u"Ångström");
    platform.ui.expectBox(Answer::ok, u"By brand should not be longer than 9 bytes");

    EXPECT_TRUE(canSend(form.brand, form.brand.items()[0].text, 10));
    EXPECT_FALSE(canSend(form.brand, form.brand.items()[0].text, 9));

    EXPECT_EQ(form.focus(), &form.brand);
}

TEST_F(SendableText, doesNotKeepAnybodyFromCancelling) {
    form.name.userTyped(wire::WideString(32768, u'x'));

    EXPECT_TRUE(form.cancelButton().userPressed());

    EXPECT_TRUE(form.ended());
}

} // namespace
} // namespace forms
