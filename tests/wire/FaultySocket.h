#pragma once

#include "wire/NameLookup.h"
#include "wire/Socket.h"

#include <algorithm>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

// The platform's socket calls, except for those that a test makes fail; records the names of the calls in order.
class FaultySocket final : public wire::Socket {
public:
    static constexpr wire::SocketResult failure{.value = -1, .error = 77, .fault = wire::SocketFault::other};

    bool start() override {
        calls.emplace_back("start");
        return starts;
    }
    wire::SocketResult open() override {
        calls.emplace_back("open");
        return opened ? *opened : real_.open();
    }
    void bind(wire::SocketHandle handle, const std::string& address) override {
        calls.push_back("bind " + address);
        real_.bind(handle, address);
    }
    wire::SocketResult setBlocking(wire::SocketHandle handle, bool blocking) override {
        calls.emplace_back(blocking ? "blocking" : "non-blocking");
        const auto& planned = blocking ? madeBlocking : madeNonBlocking;
        return planned ? *planned : real_.setBlocking(handle, blocking);
    }
    void setDebug(wire::SocketHandle handle) override {
        calls.emplace_back("debug");
        real_.setDebug(handle);
    }
    void setNoDelay(wire::SocketHandle handle) override {
        calls.emplace_back("no delay");
        real_.setNoDelay(handle);
    }
    wire::SocketResult connect(wire::SocketHandle handle, std::uint32_t address, std::uint16_t port) override {
        calls.emplace_back("connect");
        return connected ? *connected : real_.connect(handle, address, port);
    }
    wire::ConnectState waitConnected(wire::SocketHandle handle, std::chrono::milliseconds limit) override {
        calls.emplace_back("select");
        return selected ? *selected : real_.waitConnected(handle, limit);
    }
    wire::SocketResult receive(wire::SocketHandle handle, std::span<std::uint8_t> into,
                               std::chrono::milliseconds limit) override {
        if (onReceive) {
            onReceive();
        }
        if (!arrivals.empty()) {
            const std::vector<std::uint8_t> bytes = arrivals.front();
            arrivals.pop_front();
            std::copy(bytes.begin(), bytes.end(), into.begin());
            return {.value = static_cast<std::intptr_t>(bytes.size())};
        }
        return received ? *received : real_.receive(handle, into, limit);
    }
    wire::SocketResult send(wire::SocketHandle handle, std::span<const std::uint8_t> bytes) override {
        return sent ? *sent : real_.send(handle, bytes);
    }
    wire::SocketResult shutdown(wire::SocketHandle handle, int mode) override {
        calls.push_back("shutdown " + std::to_string(mode));
        return shutDown ? *shutDown : real_.shutdown(handle, mode);
    }
    wire::SocketResult close(wire::SocketHandle handle) override {
        calls.emplace_back("close");
        const wire::SocketResult result = real_.close(handle);
        return closed ? *closed : result;
    }
    std::uint32_t parseAddress(const std::string& text) override { return real_.parseAddress(text); }
    std::unique_ptr<wire::NameLookup> resolve(const std::string& host) override {
        calls.push_back("resolve " + host);
        if (onLookup) {
            return std::make_unique<Lookup>(*this);
        }
        return resolved ? std::make_unique<wire::KnownLookup>(*resolved) : real_.resolve(host);
    }

    bool starts = true;
    std::optional<wire::SocketResult> opened, madeBlocking, madeNonBlocking, connected, received, sent, shutDown,
        closed;
    std::optional<wire::ConnectState> selected;
    std::optional<wire::ResolveResult> resolved;
    std::deque<std::vector<std::uint8_t>> arrivals; // received before anything else
    std::function<void()> onReceive;
    // The result of waiting for a name, instead of the resolver's answer.
    std::function<std::optional<wire::ResolveResult>(std::chrono::milliseconds limit)> onLookup;
    std::vector<std::string> calls;

private:
    class Lookup final : public wire::NameLookup {
    public:
        explicit Lookup(FaultySocket& socket) : socket_(socket) {}
        ~Lookup() override { socket_.calls.emplace_back("forget name"); }
        Lookup(const Lookup&) = delete;
        Lookup& operator=(const Lookup&) = delete;

        std::optional<wire::ResolveResult> wait(std::chrono::milliseconds limit) override {
            return socket_.onLookup(limit);
        }

    private:
        FaultySocket& socket_;
    };

    wire::Socket& real_ = wire::platformSocket();
};
