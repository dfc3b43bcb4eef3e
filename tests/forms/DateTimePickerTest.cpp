#include "tests/forms/SampleForm.h"
#include "tests/support/TestPlatform.h"

#include <gtest/gtest.h>

namespace forms {
namespace {

using platform::isValid;

class DateTimePickerTest : public testing::Test {
protected:
    support::TestPlatform platform;
    SampleForm form{platform};

    DateTimePickerTest() { form.tabs.show(1); }
};

TEST_F(DateTimePickerTest, realDaysAndTimesAreToldFromOthers) {
    EXPECT_TRUE(isValid({2024, 2, 29, 23, 59, 59}));
    EXPECT_TRUE(isValid({1, 1, 1, 0, 0, 0}));
    EXPECT_FALSE(isValid({2023, 2, 29, 0, 0, 0}));
    EXPECT_FALSE(isValid({2023, 13, 1, 0, 0, 0}));
    EXPECT_FALSE(isValid({2023, 0, 1, 0, 0, 0}));
    EXPECT_FALSE(isValid({2023, 4, 31, 0, 0, 0}));
    EXPECT_FALSE(isValid({2023, 4, -1, 0, 0, 0}));
    EXPECT_FALSE(isValid({2023, 4, 1, 24, 0, 0}));
    EXPECT_FALSE(isValid({2023, 4, 1, 0, 60, 0}));
    EXPECT_FALSE(isValid({2023, 4, 1, 0, 0, -1}));
    EXPECT_FALSE(isValid({0, 4, 1, 0, 0, 0}));
    EXPECT_FALSE(isValid({10000, 4, 1, 0, 0, 0}));
}

TEST_F(DateTimePickerTest, whatIsPickedHasToBeReal) {
    int times = 0;
    form.from.onChange = [&] { ++times; };
    EXPECT_FALSE(form.from.userPicked(DateTime{2023, 2, 29, 0, 0, 0}));
    EXPECT_TRUE(form.from.userPicked(DateTime{2024, 2, 29, 1, 2, 3}));
    EXPECT_EQ(form.from.value(), (DateTime{2024, 2, 29, 1, 2, 3}));
    EXPECT_EQ(times, 1);
}

TEST_F(DateTimePickerTest, onlyAnOptionalOneCanBeSwitchedOff) {
    DateTimePicker until(form.more, u"Until", {.optional = true});
    EXPECT_FALSE(form.from.userPicked(std::nullopt));
    EXPECT_TRUE(until.userPicked(DateTime{}));
    EXPECT_TRUE(until.userPicked(std::nullopt));
    EXPECT_FALSE(until.value().has_value());
}

TEST_F(DateTimePickerTest, whatTheFormPutsInIsNoneWhenItIsNotReal) {
    form.from.setValue(DateTime{2024, 2, 29, 0, 0, 0});
    form.from.setValue(DateTime{2023, 2, 29, 0, 0, 0});
    EXPECT_FALSE(form.from.value().has_value());
}

} // namespace
} // namespace forms
