#pragma once

#include "client/CommandObserver.h"
#include "platform/Platform.h"
#include "tests/support/FakeEnvironment.h"
#include "tests/support/FakeLauncher.h"
#include "tests/support/FakeUserInterface.h"
#include "tests/support/MemorySettingsStore.h"

#include <string>
#include <utility>
#include <vector>

namespace support {

// A whole host for nodes and forms under test. Declare it before the nodes: it outlives them.
class TestPlatform {
public:
    FakeUserInterface ui;
    MemorySettingsStore settings;
    FakeEnvironment environment;
    FakeLauncher launcher;

    explicit TestPlatform(const platform::Locale& locale = platform::plainLocale)
        : platform_{.ui = ui,
                    .settings = settings,
                    .hooks = {.commands = &observer_},
                    .locale = locale,
                    .environment = environment,
                    .launcher = launcher} {}
    TestPlatform(const TestPlatform&) = delete;
    TestPlatform& operator=(const TestPlatform&) = delete;

    operator platform::Platform&() { return platform_; } // NOLINT(google-explicit-constructor): is used as one
    platform::Platform& platform() { return platform_; }

    // The exceptions that the guards of nodes and forms have caught, as "where: what".
    [[nodiscard]] const std::vector<std::string>& failures() const { return observer_.failures; }
    // The names of the commands that were sent, in order.
    [[nodiscard]] const std::vector<std::string>& commands() const { return observer_.commands; }

private:
    class Observer final : public client::CommandObserver {
    public:
        void commandStarted(const client::CommandReport& report) override { commands.emplace_back(report.name); }
        void commandEnded(const client::CommandReport& /*report*/) override {}
        void handlerStopped(std::string_view where, std::string_view what) override {
            failures.push_back(std::string(where) + ": " + std::string(what));
        }

        std::vector<std::string> failures;
        std::vector<std::string> commands;
    };

    Observer observer_;
    platform::Platform platform_;
};

} // namespace support
