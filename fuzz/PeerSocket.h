#pragma once

#include "fuzz/PeerClock.h"
#include "wire/NameLookup.h"
#include "wire/Socket.h"

namespace fuzz {

// A peer in memory: it answers everything with the bytes of the run, over any number of connections.
class PeerSocket final : public wire::Socket {
public:
    explicit PeerSocket(PeerClock& clock) : clock_(clock) {}

    // The manner selects in what pieces the bytes arrive, and whether the peer closes, resets, stalls or fails after
    // them.
    void play(std::uint8_t manner, std::span<const std::uint8_t> bytes);

    bool start() override { return true; }
    wire::SocketResult open() override { return {.value = 1}; }
    void bind(wire::SocketHandle, const std::string&) override {}
    wire::SocketResult setBlocking(wire::SocketHandle, bool) override { return {}; }
    void setDebug(wire::SocketHandle) override {}
    void setNoDelay(wire::SocketHandle) override {}
    wire::SocketResult connect(wire::SocketHandle, std::uint32_t, std::uint16_t) override;
    wire::ConnectState waitConnected(wire::SocketHandle, std::chrono::milliseconds) override;
    wire::SocketResult receive(wire::SocketHandle, std::span<std::uint8_t> into,
                               std::chrono::milliseconds limit) override;
    wire::SocketResult send(wire::SocketHandle, std::span<const std::uint8_t> bytes) override;
    wire::SocketResult shutdown(wire::SocketHandle, int) override { return {}; }
    wire::SocketResult close(wire::SocketHandle) override { return {}; }
    std::uint32_t parseAddress(const std::string&) override { return 0x0100007F; }
    std::unique_ptr<wire::NameLookup> resolve(const std::string&) override {
        return std::make_unique<wire::KnownLookup>(wire::ResolveResult{.result = 1});
    }

private:
    enum class Ending : std::uint8_t { closes, resets, stalls, fails };

    PeerClock& clock_;
    std::span<const std::uint8_t> bytes_;
    std::size_t piece_ = 1;
    Ending ending_ = Ending::closes;
};

} // namespace fuzz
