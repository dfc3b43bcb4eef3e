#pragma once

#include "tests/support/Bytes.h"
#include "wire/Clock.h"
#include "wire/NameLookup.h"
#include "wire/Socket.h"

#include <cstdint>

namespace adversity {

using support::Bytes;

// What a peer does once it has sent all of its bytes.
enum class Ending {
    close, // the reader sees the end
    reset, // the reader sees a broken connection
    stall, // nothing more arrives, and time passes
};

// A peer in memory, with its own clock: sends its bytes in pieces of a chosen size, and accepts whatever it is sent.
class MemoryPeer final : public wire::Socket, public wire::Clock {
public:
    MemoryPeer(Bytes bytes, Ending ending, std::size_t pieceSize = 65536)
        : bytes_(std::move(bytes)), ending_(ending), pieceSize_(pieceSize) {}

    // The seconds that the reader has waited in vain.
    [[nodiscard]] std::chrono::seconds waited() const { return waited_; }

    bool start() override { return true; }
    wire::SocketResult open() override { return {.value = 1}; }
    void bind(wire::SocketHandle, const std::string&) override {}
    wire::SocketResult setBlocking(wire::SocketHandle, bool) override { return {}; }
    void setDebug(wire::SocketHandle) override {}
    void setNoDelay(wire::SocketHandle) override {}
    wire::SocketResult connect(wire::SocketHandle, std::uint32_t, std::uint16_t) override {
        return {.value = -1, .fault = wire::SocketFault::wouldBlock};
    }
    wire::ConnectState waitConnected(wire::SocketHandle, std::chrono::milliseconds) override {
        return {.value = 1, .writable = true};
    }
    wire::SocketResult receive(wire::SocketHandle, std::span<std::uint8_t> into, std::chrono::milliseconds) override;
    wire::SocketResult send(wire::SocketHandle, std::span<const std::uint8_t> bytes) override {
        return {.value = static_cast<std::intptr_t>(bytes.size())};
    }
    wire::SocketResult shutdown(wire::SocketHandle, int) override { return {}; }
    wire::SocketResult close(wire::SocketHandle) override { return {}; }
    [[nodiscard]] std::uint32_t parseAddress(const std::string&) override { return 0x0100007F; }
    std::unique_ptr<wire::NameLookup> resolve(const std::string&) override {
        return std::make_unique<wire::KnownLookup>(wire::ResolveResult{});
    }

    [[nodiscard]] std::chrono::nanoseconds now() override { return waited_; }
    void sleep(std::chrono::milliseconds) override {}

private:
    Bytes bytes_;
    Ending ending_;
    std::size_t pieceSize_;
    std::size_t next_ = 0;
    std::chrono::seconds waited_{0};
};

} // namespace adversity
