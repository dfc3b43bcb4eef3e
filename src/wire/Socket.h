#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>

namespace wire {

// A socket of the platform; 0 is none.
using SocketHandle = std::intptr_t;

// The faults that a caller must distinguish; everything else is other.
enum class SocketFault { none, wouldBlock, reset, other };

// The outcome of a socket call: its value (a handle or a count, -1 for a failure) and the platform's error number.
struct SocketResult {
    std::intptr_t value = 0;
    std::int32_t error = 0;
    SocketFault fault = SocketFault::none;
};

// The state of a connection attempt: value as select returns it (-1 failure, 0 time-out, positive decided).
struct ConnectState {
    int value = 0;
    bool writable = false;
    bool exception = false;
    std::int32_t error = 0;
};

// The outcome of a name look-up: the resolver's result (0 is success) and an IPv4 address in network order.
struct ResolveResult {
    std::int32_t result = 0;
    std::uint32_t address = 0;
};

// Results of a look-up besides those of the resolver, as Windows numbers them.
constexpr std::int32_t lookupTimedOut = 11002; // no answer in time
constexpr std::int32_t lookupFailed = 11003;   // it could not even be started

// A look-up of a name in progress. Destroying it abandons the look-up without waiting.
class NameLookup {
public:
    virtual ~NameLookup() = default;

    // Waits until the look-up has ended, up to the limit; empty when it has not. The result is returned once.
    virtual std::optional<ResolveResult> wait(std::chrono::milliseconds limit) = 0;
};

// The socket calls of the platform, one function each, so that the order of steps and the time-outs are written once. A
// handle of 0 fails like one that is not a socket.
class Socket {
public:
    static constexpr std::uint32_t noAddress = 0xFFFFFFFF;

    virtual ~Socket() = default;

    // Initializes the socket library; false when the platform refuses.
    virtual bool start() = 0;

    // A TCP socket that no child process inherits. A value below 1 is a failure.
    virtual SocketResult open() = 0;

    virtual void bind(SocketHandle handle, const std::string& address) = 0;
    virtual SocketResult setBlocking(SocketHandle handle, bool blocking) = 0;

    // Option 1 of the socket level as Windows numbers it.
    virtual void setDebug(SocketHandle handle) = 0;

    // Sends small pieces at once.
    virtual void setNoDelay(SocketHandle handle) = 0;

    virtual SocketResult connect(SocketHandle handle, std::uint32_t address, std::uint16_t port) = 0;
    virtual ConnectState waitConnected(SocketHandle handle, std::chrono::milliseconds limit) = 0;

    // Receives what is available, and waits up to the limit if nothing is: wouldBlock when nothing arrived, 0 when the
    // peer closed.
    virtual SocketResult receive(SocketHandle handle, std::span<std::uint8_t> into,
                                 std::chrono::milliseconds limit) = 0;

    // Waits until the platform has accepted all bytes; raises no signal when the peer is gone.
    virtual SocketResult send(SocketHandle handle, std::span<const std::uint8_t> bytes) = 0;

    // Mode 0 ends receiving, 2 both directions.
    virtual SocketResult shutdown(SocketHandle handle, int mode) = 0;
    virtual SocketResult close(SocketHandle handle) = 0;

    // A dotted address in network order, or noAddress.
    [[nodiscard]] virtual std::uint32_t parseAddress(const std::string& text) = 0;

    // Starts to look a name up.
    [[nodiscard]] virtual std::unique_ptr<NameLookup> resolve(const std::string& host) = 0;
};

// The implementation for this platform; stateless, usable from any thread.
[[nodiscard]] Socket& platformSocket();

} // namespace wire
