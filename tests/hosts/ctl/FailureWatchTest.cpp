#include "hosts/ctl/FailureWatch.h"

#include <gtest/gtest.h>

namespace {

using client::CommandOutcome;
using client::CommandReport;

CommandReport report(CommandOutcome outcome, bool connected) {
    CommandReport made;
    made.name = "ListRegions";
    made.target = "host:5005";
    made.outcome = outcome;
    made.connected = connected;
    made.text = "failed to get messages";
    return made;
}

ctl::Failure failureOf(ctl::FailureWatch& watch) {
    try {
        watch.check();
    } catch (const ctl::Failure& failure) {
        return failure;
    }
    return {ctl::ExitStatus::done, ""};
}

TEST(FailureWatch, aCommandThatIsDoneIsNoFailure) {
    ctl::FailureWatch watch;
    watch.commandEnded(report(CommandOutcome::done, true));

    EXPECT_NO_THROW(watch.check());
}

TEST(FailureWatch, aFailedCommandIsNamedWithItsReason) {
    ctl::FailureWatch watch;
    watch.commandEnded(report(CommandOutcome::failed, true));

    const auto failure = failureOf(watch);
    EXPECT_EQ(failure.status(), ctl::ExitStatus::refused);
    EXPECT_STREQ(failure.what(), "The command ListRegions failed: failed to get messages");
}

TEST(FailureWatch, withoutAConnectionItIsTheServer) {
    ctl::FailureWatch watch;
    watch.commandEnded(report(CommandOutcome::failed, false));

    const auto failure = failureOf(watch);
    EXPECT_EQ(failure.status(), ctl::ExitStatus::noConnection);
    EXPECT_STREQ(failure.what(), "There is no connection to host:5005");
}

TEST(FailureWatch, theFirstFailureCounts) {
    ctl::FailureWatch watch;
    watch.commandEnded(report(CommandOutcome::failed, true));
    watch.handlerStopped("class X", "later");

    EXPECT_STREQ(failureOf(watch).what(), "The command ListRegions failed: failed to get messages");
}

TEST(FailureWatch, aStoppedHandlerIsAFailure) {
    ctl::FailureWatch watch;
    watch.handlerStopped("class PrinterNode", "Reading outside scope");

    EXPECT_STREQ(failureOf(watch).what(), "class PrinterNode: Reading outside scope");
    EXPECT_NO_THROW(watch.check());
}

} // namespace
