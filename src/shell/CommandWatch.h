#pragma once

#include "client/CommandObserver.h"
#include "shell/Observers.h"
#include "wire/WaitObserver.h"

namespace shell {

// Passes the client's reports about its commands on to the observers.
class CommandWatch final : public client::CommandObserver, public wire::WaitObserver {
public:
    // The observers outlive this.
    explicit CommandWatch(const Observers& observers) : observers_(observers) {}

    void commandStarted(const client::CommandReport& report) override;
    void commandEnded(const client::CommandReport& report) override;
    void handlerStopped(std::string_view where, std::string_view what) override;
    // False as soon as one of the observers gives up.
    bool keepWaiting(std::chrono::milliseconds elapsed, std::uint32_t records) override;

private:
    const Observers& observers_;
};

} // namespace shell
