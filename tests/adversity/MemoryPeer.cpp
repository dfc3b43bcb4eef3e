#include "tests/adversity/MemoryPeer.h"

#include <algorithm>

namespace adversity {

wire::SocketResult MemoryPeer::receive(wire::SocketHandle, std::span<std::uint8_t> into, std::chrono::milliseconds) {
    const auto count = std::min({bytes_.size() - next_, into.size(), pieceSize_});
    if (count > 0) {
        std::copy_n(bytes_.begin() + static_cast<std::ptrdiff_t>(next_), count, into.begin());
        next_ += count;
        return {.value = static_cast<std::intptr_t>(count)};
    }
    if (ending_ == Ending::close) {
        return {};
    }
    if (ending_ == Ending::reset) {
        return {.value = -1, .error = 104, .fault = wire::SocketFault::reset};
    }
    ++waited_;
    return {.value = -1, .error = 11, .fault = wire::SocketFault::wouldBlock};
}

} // namespace adversity
