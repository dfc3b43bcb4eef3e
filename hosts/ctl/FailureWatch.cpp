#include "hosts/ctl/FailureWatch.h"

#include <string>
#include <utility>

namespace ctl {

void FailureWatch::commandEnded(const client::CommandReport& report) {
    const bool ended =
        report.outcome == client::CommandOutcome::failed || report.outcome == client::CommandOutcome::cancelled;
    if (!ended || first_) {
        return;
    }
    if (!report.connected) {
        first_ = Failure(ExitStatus::noConnection, "There is no connection to " + report.target);
    } else {
        first_ = Failure(ExitStatus::refused, "The command " + std::string(report.name) + " failed" +
                                                  (report.text.empty() ? "" : ": " + report.text));
    }
}

void FailureWatch::handlerStopped(std::string_view where, std::string_view what) {
    if (!first_) {
        first_ = Failure(ExitStatus::refused, std::string(where) + ": " + std::string(what));
    }
}

void FailureWatch::check() {
    if (const auto failure = std::exchange(first_, std::nullopt)) {
        throw *failure;
    }
}

} // namespace ctl
