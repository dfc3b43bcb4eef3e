#include "wire/CTrans.h"

#include "wire/Cancelled.h"

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <utility>

namespace trans {

using namespace std::chrono_literals;
using wire::ConnectState;
using wire::Message;
using wire::ResolveResult;
using wire::Socket;
using wire::SocketFault;
using wire::SocketResult;
using wire::TransLogger;

namespace {

constexpr std::chrono::seconds defaultConnectTimeout = 8s;
constexpr std::size_t maximumQueueLength = 357913940;
constexpr int maximumCloseFailures = 11;

void log(const TransLogger& logger, const std::string& text, std::int32_t code, std::int32_t level) {
    if (logger) {
        logger(text, code, level);
    }
}

} // namespace

CTrans::CTrans() : CTrans(wire::platformSocket(), wire::steadyClock()) {}

CTrans::CTrans(Socket& socketCalls, wire::Clock& clock) : calls_(socketCalls), clock_(clock) {}

CTrans::~CTrans() {
    closeSocket();
}

bool CTrans::connect(std::uint32_t timeoutSeconds, const TransLogger& logger) {
    return iSocketConnect(timeoutSeconds, logger);
}

bool CTrans::disconnect(int) {
    return closeSocket();
}

void CTrans::addMessage(std::unique_ptr<Message> message) {
    if (!message || !message->rewound()) {
        throw "Attempting to store a non rewinded message";
    }
    if (messages_.size() >= maximumQueueLength) {
        throw std::length_error("list<T> too long");
    }
    messages_.push_back(std::move(message));
}

std::unique_ptr<Message> CTrans::getMessage(wire::MessageKind kind) {
    const auto found = std::find_if(messages_.rbegin(), messages_.rend(),
                                    [&](const auto& message) { return message->kind() == kind; });
    if (found == messages_.rend()) {
        return nullptr;
    }
    std::unique_ptr<Message> message = std::move(*found);
    messages_.erase(std::next(found).base());
    return message;
}

// Repeats an attempt, which itself waits for a while, until it yields something or the deadline has passed, and asks
// the observer in between. Returns what the last attempt yielded.
template <typename Attempt>
auto CTrans::retryUntil(std::chrono::nanoseconds deadline, Attempt attempt) {
    while (true) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - clock_.now());
        auto outcome = attempt(std::clamp(left, std::chrono::milliseconds{0}, longestWait));
        if (outcome) {
            return outcome;
        }
        askObserver(clock_.now());
        if (clock_.now() >= deadline) {
            return outcome;
        }
    }
}

bool CTrans::iSocketConnect(std::uint32_t timeoutSeconds, const TransLogger& logger) {
    const std::chrono::milliseconds limit =
        timeoutSeconds == 0 ? defaultConnectTimeout : std::chrono::seconds{timeoutSeconds};
    observedFrom_ = lastObserved_ = clock_.now();
    const std::chrono::nanoseconds deadline = observedFrom_ + limit; // for the look-up and the attempt together
    if (!wsaStarted_ && !calls_.start()) {
        throw "WSAStartup failed";
    }
    wsaStarted_ = true;

    const SocketResult opened = calls_.open();
    if (opened.value < 1) {
        log(logger, "CTrans::iSocketConnect socket()", opened.error, wire::misuseLevel);
        socket_ = 0;
        return false;
    }
    socket_ = opened.value;
    if (!localAddress_.empty()) {
        calls_.bind(socket_, localAddress_);
    }

    // A failure up to the attempt itself leaves the socket open; the destructor closes it.
    std::uint32_t address = calls_.parseAddress(host_);
    if (address == Socket::noAddress) {
        address = resolveDNSl(host_, deadline - clock_.now(), logger);
        if (address == 0) {
            log(logger, "CTrans::iSocketConnect resolveDNSl failed (" + host_ + ")", 0, wire::failureLevel);
            return false;
        }
    }
    const SocketResult unblocked = calls_.setBlocking(socket_, false);
    if (unblocked.value != 0) {
        log(logger, "CTrans::iSocketConnect ioctlsocket connect failed (" + host_ + ")", unblocked.error,
            wire::failureLevel);
        return false;
    }
    calls_.setDebug(socket_);

    const SocketResult attempt = calls_.connect(socket_, address, port_);
    if (attempt.value != -1) {
        // A connection that is established at once counts as failed: only a pending attempt can succeed. This must stay
        // so.
        return false;
    }
    if (attempt.fault != SocketFault::wouldBlock) {
        return failConnect("connect failed", attempt.error, logger);
    }
    return finishConnect(deadline, logger);
}

bool CTrans::finishConnect(std::chrono::nanoseconds deadline, const TransLogger& logger) {
    const auto decided = retryUntil(deadline, [&](std::chrono::milliseconds wait) {
        const ConnectState state = calls_.waitConnected(socket_, wait);
        return state.value != 0 ? std::optional(state) : std::nullopt;
    });
    const ConnectState state = decided.value_or(ConnectState{});
    if (state.value == -1) {
        return failConnect("select failed", state.error, logger);
    }
    if (state.value == 0) {
        return failConnect("select timeout", state.error, logger);
    }
    if (!state.writable) {
        return failConnect("FD_ISSET writefds failed", state.error, logger);
    }
    if (state.exception) {
        return failConnect("FD_ISSET Err", state.error, logger);
    }
    const SocketResult blocked = calls_.setBlocking(socket_, true);
    if (blocked.value != 0) {
        return failConnect("ioctlsocket FIONBIO failed", blocked.error, logger);
    }
    calls_.setNoDelay(socket_);
    return true;
}

bool CTrans::failConnect(const std::string& what, std::int32_t code, const TransLogger& logger) {
    log(logger, "CTrans::iSocketConnect " + what + " (" + host_ + ")", code, wire::failureLevel);
    calls_.shutdown(socket_, 2);
    calls_.close(socket_);
    socket_ = 0;
    return false;
}

std::uint32_t CTrans::resolveDNSl(const std::string& host, std::chrono::nanoseconds limit, const TransLogger& logger) {
    if (host.empty()) {
        log(logger, "resolveDNSl unable to resolve empty string", 0, wire::misuseLevel);
        return 0;
    }
    const auto lookup = calls_.resolve(host);
    const ResolveResult resolved = retryUntil(clock_.now() + limit, [&](std::chrono::milliseconds wait) {
                                       return lookup->wait(wait);
                                   }).value_or(ResolveResult{.result = wire::lookupTimedOut});
    if (resolved.result != 0) {
        log(logger, "resolveDNSl getaddrinfo failed (" + host + ")", resolved.result, wire::failureLevel);
        return 0;
    }
    return resolved.address;
}

bool CTrans::closeSocket() {
    if (socket_ == 0) {
        return true;
    }
    calls_.setBlocking(socket_, true);
    int failures = 0;
    const auto retry = [&](const auto& call) {
        while (call().value != 0) {
            clock_.sleep(50ms);
            if (++failures >= maximumCloseFailures) {
                return;
            }
        }
    };
    retry([&] { return calls_.shutdown(socket_, 0); });
    retry([&] { return calls_.close(socket_); });
    socket_ = 0;
    return true;
}

void CTrans::askObserver(std::chrono::nanoseconds now) {
    lastObserved_ = now;
    if (observer_ != nullptr) {
        const auto elapsed = std::chrono::duration_cast<std::chrono::milliseconds>(now - observedFrom_);
        if (!observer_->keepWaiting(elapsed, records_)) {
            throw wire::Cancelled();
        }
    }
}

} // namespace trans
