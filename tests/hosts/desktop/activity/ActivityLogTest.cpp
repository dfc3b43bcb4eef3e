#include "hosts/desktop/activity/ActivityModel.h"

#include "tests/hosts/desktop/ModelFixture.h"

#include <gtest/gtest.h>

namespace desktoptest {
namespace {

using client::CommandOutcome;
using client::CommandReport;

CommandReport report(std::string_view name, std::string about = {}) {
    CommandReport made;
    made.name = name;
    made.target = "host:5005";
    made.summary = std::move(about);
    return made;
}

CommandReport ended(std::string_view name, CommandOutcome outcome, std::string text = {}) {
    CommandReport made = report(name);
    made.outcome = outcome;
    made.text = std::move(text);
    return made;
}

class ActivityLogTest : public testing::Test {
protected:
    void run(CommandReport command) {
        observers.tell([&](shell::ShellObserver& observer) { observer.commandStarted(command); });
        command.outcome = command.outcome == CommandOutcome::running ? CommandOutcome::done : command.outcome;
        observers.tell([&](shell::ShellObserver& observer) { observer.commandEnded(command); });
    }
    [[nodiscard]] QString cell(int row, int column) const { return model.index(row, column).data().toString(); }

    shell::Observers observers;
    desktop::ActivityLog log{observers};
    desktop::ActivityModel model{log};
    std::optional<Tested> tested{std::in_place, model};
};

TEST_F(ActivityLogTest, aCommandIsOneLineThatIsCompletedAtItsEnd) {
    CommandReport command = report("ListRegions", "region 7");
    observers.tell([&](shell::ShellObserver& observer) { observer.commandStarted(command); });
    ASSERT_EQ(1, model.rowCount());
    EXPECT_EQ(QStringLiteral("Running"), cell(0, 8));
    command.records = 12;
    command.bytesReceived = 345;
    command.duration = std::chrono::microseconds(2'500);
    command.outcome = CommandOutcome::done;
    observers.tell([&](shell::ShellObserver& observer) { observer.commandEnded(command); });
    ASSERT_EQ(1, model.rowCount());
    EXPECT_EQ(QStringLiteral("ListRegions"), cell(0, 1));
    EXPECT_EQ(QStringLiteral("region 7"), cell(0, 2));
    EXPECT_EQ(QStringLiteral("host:5005"), cell(0, 3));
    EXPECT_EQ(QStringLiteral("12"), cell(0, 4));
    EXPECT_EQ(QStringLiteral("345"), cell(0, 6));
    EXPECT_TRUE(cell(0, 7).contains(QStringLiteral("2.5"))) << cell(0, 7).toStdString();
    EXPECT_EQ(QStringLiteral("Done"), cell(0, 8));
}

TEST_F(ActivityLogTest, saysWhyACommandDidNotEndWell) {
    run(ended("Login", CommandOutcome::failed, "Failed to connect to server"));
    run(ended("ListRegions", CommandOutcome::cancelled, "Cancelled"));
    EXPECT_EQ(QStringLiteral("Failed: Failed to connect to server"), cell(0, 8));
    EXPECT_EQ(QStringLiteral("Cancelled"), cell(1, 8));
}

TEST_F(ActivityLogTest, aCommandWithinACommandCompletesItsOwnLine) {
    const CommandReport outer = ended("Login", CommandOutcome::done);
    observers.tell([&](shell::ShellObserver& observer) { observer.commandStarted(report("Login")); });
    run(report("GetPublicKey"));
    EXPECT_EQ(QStringLiteral("Running"), cell(0, 8));
    EXPECT_EQ(QStringLiteral("Done"), cell(1, 8));
    observers.tell([&](shell::ShellObserver& observer) { observer.commandEnded(outer); });
    EXPECT_EQ(QStringLiteral("Done"), cell(0, 8));
    EXPECT_EQ(2, model.rowCount());
}

TEST_F(ActivityLogTest, keepsTheLatestAndDropsTheOldest) {
    tested.reset(); // checks all lines after each change
    for (std::size_t number = 0; number < desktop::ActivityLog::capacity + 3; ++number) {
        run(report("ListRegions", std::to_string(number)));
    }
    EXPECT_EQ(static_cast<int>(desktop::ActivityLog::capacity), model.rowCount());
    EXPECT_EQ(QStringLiteral("3"), cell(0, 2));
}

TEST_F(ActivityLogTest, aStoppedHandlerIsALineOfItsOwn) {
    observers.tell([&](shell::ShellObserver& observer) { observer.handlerStopped("PrinterNode", "out of scope"); });
    ASSERT_EQ(1, model.rowCount());
    EXPECT_EQ(QStringLiteral("PrinterNode"), cell(0, 2));
    EXPECT_EQ(QStringLiteral("Failed: out of scope"), cell(0, 8));
}

TEST_F(ActivityLogTest, aHandlerThatItsCommandHasStoppedIsNotToldTwice) {
    run(ended("ListRegions", CommandOutcome::cancelled, "Cancelled"));
    observers.tell([&](shell::ShellObserver& observer) { observer.handlerStopped("PrinterRegionNode", "Cancelled"); });
    EXPECT_EQ(1, model.rowCount());
}

TEST_F(ActivityLogTest, aTextWithLineBreaksStaysOnItsLine) {
    run(report("ListRegions", "one\ntwo"));
    EXPECT_EQ(QStringLiteral("one␊two"), cell(0, 2));
}

TEST_F(ActivityLogTest, canBeEmptied) {
    run(report("ListRegions"));
    log.clear();
    EXPECT_EQ(0, model.rowCount());
}

} // namespace
} // namespace desktoptest
