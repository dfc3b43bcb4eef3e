#include "tests/shell/ShellFixture.h"

#include <array>

namespace shelltest {
namespace {

using platform::Key;
using Kind = shell::Task::Kind;

TEST(ShellUserInterface, aSequenceWithF5IsOneRefresh) {
    shell::TaskQueue tasks;
    QuietUserInterface ui(tasks);

    ui.press(std::array{Key::up, Key::down, Key::f5});

    EXPECT_EQ(tasks.next()->kind, Kind::refresh);
    EXPECT_TRUE(tasks.empty());
}

TEST(ShellUserInterface, otherKeysAreNothing) {
    shell::TaskQueue tasks;
    QuietUserInterface ui(tasks);

    ui.press(std::array{Key::tab, Key::tab});

    EXPECT_TRUE(tasks.empty());
}

TEST(ShellUserInterface, aThreadsWorkWaitsInTheQueue) {
    shell::TaskQueue tasks;
    QuietUserInterface ui(tasks);
    bool ran = false;

    ui.startThread([&] { ran = true; });

    EXPECT_FALSE(ran);
    tasks.next()->work();
    EXPECT_TRUE(ran);
}

TEST(ShellUserInterface, closingWaitsInTheQueue) {
    shell::TaskQueue tasks;
    QuietUserInterface ui(tasks);

    ui.close(1);

    EXPECT_EQ(tasks.next()->kind, Kind::close);
}

} // namespace
} // namespace shelltest
