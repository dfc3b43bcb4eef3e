#include "tests/forms/RecordingFormObserver.h"
#include "tests/forms/SampleForm.h"
#include "tests/support/TestPlatform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace forms {
namespace {

using testing::ElementsAre;
using testing::Pair;

class RadioButtonTest : public testing::Test {
protected:
    support::TestPlatform platform;
    RecordingFormObserver host;
    SampleForm form{platform};

    RadioButtonTest() { form.setObserver(&host); }
};

TEST_F(RadioButtonTest, noneIsChosenAtFirst) {
    EXPECT_EQ(form.choice.chosen(), nullptr);
    EXPECT_FALSE(form.byName.chosen());
    EXPECT_THAT(form.choice.buttons(), ElementsAre(&form.byBrand, &form.byName));
}

TEST_F(RadioButtonTest, choosingOneLetsGoOfTheOther) {
    form.byBrand.choose();
    form.byName.choose();
    EXPECT_FALSE(form.byBrand.chosen());
    EXPECT_TRUE(form.byName.chosen());
    EXPECT_EQ(form.choice.chosen(), &form.byName);
    EXPECT_THAT(host.changes,
                ElementsAre(Pair(&form.byBrand, Aspect::selection), Pair(&form.byBrand, Aspect::selection),
                            Pair(&form.byName, Aspect::selection)));
}

TEST_F(RadioButtonTest, theHostHearsWhichButtonThePersonsChoiceLetGo) {
    form.byBrand.choose();
    host.changes.clear();
    int times = 0;
    form.byName.onChoose = [&] { ++times; };
    EXPECT_TRUE(form.byName.userChose());
    EXPECT_EQ(times, 1);
    EXPECT_THAT(host.changes, ElementsAre(Pair(&form.byBrand, Aspect::selection)));
}

TEST_F(RadioButtonTest, choosingTheChosenOneAgainLetsGoOfNone) {
    form.byBrand.choose();
    host.changes.clear();
    EXPECT_TRUE(form.byBrand.userChose());
    EXPECT_TRUE(form.byBrand.chosen());
    EXPECT_TRUE(host.changes.empty());
}

} // namespace
} // namespace forms
