#include "tests/forms/RecordingFormObserver.h"
#include "tests/forms/SampleForm.h"
#include "tests/support/TestPlatform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace forms {
namespace {

class TextControlTest : public testing::Test {
protected:
    support::TestPlatform platform;
    SampleForm form{platform};
    EditBox digits{form, u"TTL", {.digitsOnly = true}};
};

TEST_F(TextControlTest, typingChangesTheTextAndTellsTheForm) {
    int times = 0;
    form.name.onChange = [&] { ++times; };
    EXPECT_TRUE(form.name.userTyped(u"North"));
    EXPECT_EQ(form.name.text(), u"North");
    EXPECT_EQ(times, 1);
    form.name.setText(u"South");
    EXPECT_EQ(times, 1);
}

TEST_F(TextControlTest, typingTheSameTextIsTypingAllTheSame) {
    int times = 0;
    form.name.onChange = [&] { ++times; };
    EXPECT_TRUE(form.name.userTyped(u""));
    EXPECT_EQ(times, 1);
}

TEST_F(TextControlTest, aTextBeyondTheLimitIsRefusedAndTheOldOneStays) {
    EXPECT_TRUE(form.comment.userTyped(u"12345"));
    EXPECT_FALSE(form.comment.userTyped(u"123456"));
    EXPECT_EQ(form.comment.text(), u"12345");
}

TEST_F(TextControlTest, theLimitCountsUnitsAndNotCharacters) {
    EXPECT_TRUE(form.comment.userTyped(u"\U0001F5A8\U0001F5A8"));
    EXPECT_FALSE(form.comment.userTyped(u"\U0001F5A8\U0001F5A8\U0001F5A8"));
}

TEST_F(TextControlTest, theFormItselfMayPutInMoreWhichCanThenOnlyBeMadeShorter) {
    form.comment.setText(u"12345678");
    EXPECT_EQ(form.comment.text(), u"12345678");
    EXPECT_FALSE(form.comment.userTyped(u"abcdefgh"));
    EXPECT_TRUE(form.comment.userTyped(u"1234567"));
    EXPECT_TRUE(form.comment.userTyped(u""));
}

TEST_F(TextControlTest, onlyDigitsAreTakenWhereOnlyDigitsGo) {
    EXPECT_TRUE(digits.userTyped(u"60"));
    EXPECT_FALSE(digits.userTyped(u"60x"));
    EXPECT_FALSE(digits.userTyped(u"-60"));
    EXPECT_FALSE(digits.userTyped(u"6０0"));
    EXPECT_EQ(digits.text(), u"60");
    EXPECT_TRUE(digits.userTyped(u""));
}

TEST_F(TextControlTest, whatIsReadOnlyIsNotTypedInto) {
    RecordingFormObserver host;
    form.setObserver(&host);
    form.name.setReadOnly(true);
    EXPECT_FALSE(form.name.userTyped(u"x"));
    form.name.setText(u"by the form");
    EXPECT_EQ(form.name.text(), u"by the form");
    EXPECT_EQ(host.changes.front().second, Aspect::limits);
}

TEST_F(TextControlTest, aNewLimitLeavesTheTextAlone) {
    form.name.setText(u"a long name");
    form.name.setLimit(3);
    EXPECT_EQ(form.name.text(), u"a long name");
    EXPECT_EQ(form.name.options().limit, 3U);
}

TEST_F(TextControlTest, aProblemIsToldToTheHostAndKeepsNothingFromBeingTyped) {
    RecordingFormObserver host;
    form.setObserver(&host);
    form.name.setProblem(u"Too short");
    form.name.setProblem(u"Too short");
    ASSERT_EQ(host.changes.size(), 1U);
    EXPECT_EQ(host.changes.front().second, Aspect::problem);
    EXPECT_TRUE(form.name.userTyped(u"x"));
    EXPECT_EQ(form.name.problem(), u"Too short");
}

TEST_F(TextControlTest, anyTextMayStandInABox) {
    const wire::WideString odd = wire::WideString(65535, u'x') + u"\n\t\"'/\\" + u'\0' + char16_t{0xD800};
    EXPECT_TRUE(form.password.userTyped(odd));
    EXPECT_EQ(form.password.text(), odd);
}

} // namespace
} // namespace forms
