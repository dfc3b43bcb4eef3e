#include "platform/Platform.h"

#include "tests/support/TestPlatform.h"

#include <gtest/gtest.h>

namespace platform {
namespace {

TEST(Platform, aHostThatLendsNoMoreStartsNothingAndKnowsNothing) {
    support::FakeUserInterface ui;
    support::MemorySettingsStore settings;

    const Platform host{.ui = ui, .settings = settings};

    EXPECT_EQ(host.launcher.start(u"/bin/true", {}), std::errc::function_not_supported);
    EXPECT_EQ(host.environment.variable("PATH"), std::nullopt);
    EXPECT_FALSE(host.environment.exists("/"));
    EXPECT_EQ(host.environment.currentFolder(), "");
    EXPECT_TRUE(isValid(host.environment.now()));
}

TEST(Platform, aStoreWithoutARegistryHasTheValuesOfOtherProgramsAmongItsOwn) {
    support::MemorySettingsStore settings;
    settings.values["insVantrelInstallPath"] = u"/opt/vantrel";

    EXPECT_EQ(settings.readOf("SOFTWARE\\VantrelSrv", "insVantrelInstallPath"), u"/opt/vantrel");
    EXPECT_EQ(settings.readOf("SOFTWARE\\VantrelSrv", "other"), std::nullopt);
}

TEST(Platform, aTestFurnishesItsOwnMachine) {
    support::TestPlatform test;
    test.environment.variables["PATH"] = "/opt/bin";
    test.environment.files.insert("/opt/bin/tool");
    const Platform& host = test.platform();

    EXPECT_EQ(host.environment.variable("PATH"), "/opt/bin");
    EXPECT_TRUE(host.environment.exists("/opt/bin/tool"));
    EXPECT_FALSE(host.environment.exists("/opt/bin/other"));
    EXPECT_FALSE(host.launcher.start(u"/opt/bin/tool", {u"-v"}));
    EXPECT_EQ(test.launcher.started, (std::vector<std::vector<wire::WideString>>{{u"/opt/bin/tool", u"-v"}}));
    test.launcher.error = std::make_error_code(std::errc::no_such_file_or_directory);
    EXPECT_EQ(host.launcher.start(u"/opt/bin/other", {}), std::errc::no_such_file_or_directory);
    EXPECT_EQ(test.launcher.started.size(), 1U);
}

} // namespace
} // namespace platform
