#include "tests/shell/ShellFixture.h"

#include <vector>

namespace shelltest {
namespace {

using platform::Key;
using Kind = shell::Task::Kind;

TEST(ShellUserInterface, aSequenceIsOneRefreshWhateverKeysItHolds) {
    for (const auto& keys : {std::vector{Key::up, Key::down, Key::f5, Key::f5}, std::vector{Key::tab, Key::tab}}) {
        shell::TaskQueue tasks;
        QuietUserInterface ui(tasks);

        ui.press(keys);

        EXPECT_EQ(tasks.next()->kind, Kind::refresh);
        EXPECT_TRUE(tasks.empty());
    }
}

TEST(ShellUserInterface, aSequenceWithoutKeysIsNothing) {
    shell::TaskQueue tasks;
    QuietUserInterface ui(tasks);

    ui.press({});

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
