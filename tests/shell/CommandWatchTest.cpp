#include "shell/CommandWatch.h"

#include <gtest/gtest.h>

namespace {

class Watcher final : public shell::ShellObserver {
public:
    explicit Watcher(bool patient) : patient_(patient) {}
    bool commandWaits(std::chrono::milliseconds, std::uint32_t records) override {
        seen = records;
        return patient_;
    }
    void commandEnded(const client::CommandReport& report) override { ended = report.opcode; }

    std::uint32_t seen = 0;
    std::uint16_t ended = 0;

private:
    bool patient_;
};

TEST(CommandWatch, oneObserverThatGivesUpEndsTheWait) {
    shell::Observers observers;
    Watcher patient(true);
    Watcher impatient(false);
    observers.add(impatient);
    observers.add(patient);
    shell::CommandWatch watch(observers);

    EXPECT_FALSE(watch.keepWaiting(std::chrono::milliseconds(1), 12));
    EXPECT_EQ(patient.seen, 12U);
}

TEST(CommandWatch, withoutObserversTheWaitGoesOn) {
    const shell::Observers observers;
    shell::CommandWatch watch(observers);

    EXPECT_TRUE(watch.keepWaiting(std::chrono::milliseconds(1), 0));
}

TEST(CommandWatch, tellsHowACommandEnded) {
    shell::Observers observers;
    Watcher watcher(true);
    observers.add(watcher);
    shell::CommandWatch watch(observers);
    client::CommandReport report;
    report.opcode = 6;

    watch.commandEnded(report);

    EXPECT_EQ(watcher.ended, 6);
}

} // namespace
