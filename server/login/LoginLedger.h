#pragma once

#include "server/net/Asio.h"

#include <chrono>
#include <map>
#include <optional>

namespace server {

// Remembers from which addresses somebody has logged in, and makes those that fail wait longer and longer.
class LoginLedger {
public:
    using Clock = std::chrono::steady_clock;

    // A time of 0 lets everybody in.
    explicit LoginLedger(std::chrono::minutes loginRequired) : loginRequired_(loginRequired) {}

    [[nodiscard]] bool mayCommand(const asio::ip::address& address, Clock::time_point now) const;

    // How long the next try of the address has to wait; nothing when it is not to be heard at all, because so many
    // tries of it wait already.
    [[nodiscard]] std::optional<Clock::duration> beginTry(const asio::ip::address& address, Clock::time_point now);
    void endTry(const asio::ip::address& address, Clock::time_point now, bool loggedIn);

private:
    struct Failures {
        int count = 0;
        Clock::time_point last;
        Clock::time_point nextTry;
    };

    void forgetOld(Clock::time_point now);

    std::chrono::minutes loginRequired_;
    std::map<asio::ip::address, int> underWay_;
    std::map<asio::ip::address, Clock::time_point> logins_;
    std::map<asio::ip::address, Failures> failures_;
};

} // namespace server
