#include "server/login/LoginLedger.h"

#include <algorithm>

namespace server {

namespace {

using namespace std::chrono_literals;

constexpr int freeFailures = 3; // allows for typing errors
constexpr LoginLedger::Clock::duration firstDelay = 250ms;
constexpr LoginLedger::Clock::duration longestDelay = 8s; // consoles wait only fifteen seconds for an answer
constexpr LoginLedger::Clock::duration longestWait = 10s;
constexpr LoginLedger::Clock::duration forgivenAfter = 10min;
constexpr int mostUnderWay = 32;
constexpr std::size_t mostAddresses = 10000;

LoginLedger::Clock::duration delayAfter(int failures) {
    if (failures < freeFailures) {
        return 0s;
    }
    return std::min(firstDelay * (1 << std::min(failures - freeFailures, 10)), longestDelay);
}

} // namespace

bool LoginLedger::mayCommand(const asio::ip::address& address, Clock::time_point now) const {
    if (loginRequired_ == 0min) {
        return true;
    }
    const auto login = logins_.find(address);
    return login != logins_.end() && now - login->second <= loginRequired_;
}

std::optional<LoginLedger::Clock::duration> LoginLedger::beginTry(const asio::ip::address& address,
                                                                  Clock::time_point now) {
    const auto underWay = underWay_.find(address);
    if (underWay != underWay_.end() && underWay->second >= mostUnderWay) {
        return std::nullopt;
    }
    Clock::duration wait{};
    const auto failures = failures_.find(address);
    if (failures != failures_.end()) {
        auto& [count, last, nextTry] = failures->second;
        wait = std::max(nextTry - now, Clock::duration::zero());
        if (wait > longestWait) {
            return std::nullopt;
        }
        nextTry = now + wait + delayAfter(count);
    }
    ++underWay_[address];
    return wait;
}

void LoginLedger::endTry(const asio::ip::address& address, Clock::time_point now, bool loggedIn) {
    forgetOld(now);
    const auto underWay = underWay_.find(address);
    if (underWay != underWay_.end() && --underWay->second <= 0) {
        underWay_.erase(underWay);
    }
    if (loggedIn) {
        logins_[address] = now;
        failures_.erase(address);
        return;
    }
    auto& failures = failures_[address];
    ++failures.count;
    failures.last = now;
    failures.nextTry = std::max(failures.nextTry, now + delayAfter(failures.count));
}

void LoginLedger::forgetOld(Clock::time_point now) {
    if (loginRequired_ > 0min) {
        std::erase_if(logins_, [&](const auto& login) { return now - login.second > loginRequired_; });
    }
    std::erase_if(failures_, [&](const auto& entry) { return now - entry.second.last > forgivenAfter; });
    if (failures_.size() > mostAddresses) {
        failures_.clear();
    }
}

} // namespace server
