#include "hosts/ctl/Step.h"
#include "hosts/ctl/Failure.h"

#include <gtest/gtest.h>

namespace {

using ctl::parseStep;
using Kind = ctl::Step::Kind;

TEST(Step, theFirstEqualsSignEndsTheLabel) {
    const auto step = parseStep(Kind::set, "Name=a=b");

    EXPECT_EQ(step.label, u"Name");
    EXPECT_EQ(step.value, u"a=b");
}

TEST(Step, aValueMayBeEmpty) {
    EXPECT_EQ(parseStep(Kind::set, "Name=").value, u"");
}

TEST(Step, aLabelIsNeeded) {
    EXPECT_THROW(parseStep(Kind::set, "Name"), ctl::Failure);
    EXPECT_THROW(parseStep(Kind::select, "=x"), ctl::Failure);
}

TEST(Step, answersAreTakenInAnyCase) {
    EXPECT_EQ(parseStep(Kind::answer, "Yes").answer, platform::Answer::yes);
    EXPECT_EQ(parseStep(Kind::answer, "cancel").answer, platform::Answer::cancel);
}

TEST(Step, anotherAnswerIsAnError) {
    EXPECT_THROW(parseStep(Kind::answer, "perhaps"), ctl::Failure);
}

TEST(Step, aValueThatNoCommandCanCarryIsAnError) {
    EXPECT_NO_THROW(parseStep(Kind::set, "Name=" + std::string(32767, 'x')));
    EXPECT_THROW(parseStep(Kind::set, "Name=" + std::string(32768, 'x')), ctl::Failure);
}

} // namespace
