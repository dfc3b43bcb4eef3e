#include "shell/CommandWatch.h"

namespace shell {

void CommandWatch::commandStarted(const client::CommandReport& report) {
    observers_.tell([&](ShellObserver& observer) { observer.commandStarted(report); });
}

void CommandWatch::commandEnded(const client::CommandReport& report) {
    observers_.tell([&](ShellObserver& observer) { observer.commandEnded(report); });
}

void CommandWatch::handlerStopped(std::string_view where, std::string_view what) {
    observers_.tell([&](ShellObserver& observer) { observer.handlerStopped(where, what); });
}

bool CommandWatch::keepWaiting(std::chrono::milliseconds elapsed, std::uint32_t records) {
    bool goOn = true;
    observers_.tell([&](ShellObserver& observer) { goOn = observer.commandWaits(elapsed, records) && goOn; });
    return goOn;
}

} // namespace shell
