#include "fuzz/PeerSocket.h"

#include <algorithm>
#include <cstring>

namespace fuzz {

using wire::SocketFault;
using wire::SocketResult;

namespace {

constexpr std::int32_t anyError = 1;

SocketResult failure(SocketFault fault) {
    return {.value = -1, .error = anyError, .fault = fault};
}

} // namespace

void PeerSocket::play(std::uint8_t manner, std::span<const std::uint8_t> bytes) {
    bytes_ = bytes;
    ending_ = static_cast<Ending>(manner & 3);
    piece_ = manner >> 2;
    if (piece_ == 0) {
        piece_ = bytes.size();
    }
}

SocketResult PeerSocket::connect(wire::SocketHandle, std::uint32_t, std::uint16_t) {
    return failure(SocketFault::wouldBlock);
}

wire::ConnectState PeerSocket::waitConnected(wire::SocketHandle, std::chrono::milliseconds) {
    return {.value = 1, .writable = true};
}

SocketResult PeerSocket::receive(wire::SocketHandle, std::span<std::uint8_t> into, std::chrono::milliseconds) {
    if (!bytes_.empty()) {
        const std::size_t count = std::min({piece_, bytes_.size(), into.size()});
        std::memcpy(into.data(), bytes_.data(), count);
        bytes_ = bytes_.subspan(count);
        return {.value = static_cast<std::intptr_t>(count)};
    }
    switch (ending_) {
    case Ending::resets:
        return failure(SocketFault::reset);
    case Ending::fails:
        return failure(SocketFault::other);
    case Ending::stalls:
        clock_.sleep(std::chrono::minutes(1));
        return failure(SocketFault::wouldBlock);
    default:
        return {.value = 0};
    }
}

SocketResult PeerSocket::send(wire::SocketHandle, std::span<const std::uint8_t> bytes) {
    return {.value = static_cast<std::intptr_t>(bytes.size())};
}

} // namespace fuzz
