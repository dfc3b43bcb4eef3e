#pragma once

#include "server/net/Asio.h"

#include <chrono>
#include <map>
#include <optional>

namespace server {

// Remembers the addresses with a successful login, and delays repeated failures of an address more and more.
class LoginLedger {
public:
    using Clock = std::chrono::steady_clock;

    // With a time of 0, no login is required.
    explicit LoginLedger(std::chrono::minutes loginRequired) : loginRequired_(loginRequired) {}

    [[nodiscard]] bool mayCommand(const asio::ip::address& address, Clock::time_point now) const;

    // How long the address's next attempt has to wait; empty when it is rejected at once because too many of its
    // attempts are waiting already.
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
