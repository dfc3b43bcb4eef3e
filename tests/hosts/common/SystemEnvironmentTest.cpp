#include "hosts/common/SystemEnvironment.h"

#include "tests/support/Environment.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>

namespace common {
namespace {

class SystemEnvironmentTest : public testing::Test {
protected:
    const SystemEnvironment environment_;
};

TEST_F(SystemEnvironmentTest, tellsAVariableFromOneThatIsEmptyAndOneThatIsNotSet) {
    const support::EnvironmentVariable set("VANTREL_TEST_SET", "a;b");
    const support::EnvironmentVariable empty("VANTREL_TEST_EMPTY", "");

    EXPECT_EQ(environment_.variable("VANTREL_TEST_SET"), "a;b");
    EXPECT_EQ(environment_.variable("VANTREL_TEST_EMPTY"), "");
    EXPECT_EQ(environment_.variable("VANTREL_TEST_NOT_SET"), std::nullopt);
}

TEST_F(SystemEnvironmentTest, knowsWhatStandsUnderAPath) {
    EXPECT_TRUE(environment_.exists("/"));
    EXPECT_TRUE(environment_.exists("/dev/null"));
    EXPECT_FALSE(environment_.exists("/dev/null/below"));
    EXPECT_FALSE(environment_.exists(""));
}

TEST_F(SystemEnvironmentTest, theCurrentFolderIsThatOfTheProcess) {
    EXPECT_EQ(environment_.currentFolder(), std::filesystem::current_path().string());
}

TEST_F(SystemEnvironmentTest, showsTheTimeOfTheUsersZone) {
    platform::DateTime far;
    platform::DateTime here;
    {
        const support::EnvironmentVariable zone("TZ", "<+14>-14");
        far = environment_.now();
    }
    {
        const support::EnvironmentVariable zone("TZ", "<-11>11");
        here = environment_.now();
    }

    EXPECT_TRUE(isValid(far));
    EXPECT_TRUE(isValid(here));
    EXPECT_GT(far, here); // 25 hours
    EXPECT_NE(far.day, here.day);
    EXPECT_GE(here.year, 2024);
}

} // namespace
} // namespace common
