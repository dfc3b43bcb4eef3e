#pragma once

#include <cstdint>

namespace wire {

// What a connection has sent and received so far.
struct TransferCounts {
    std::uint64_t bytesSent = 0;
    std::uint64_t bytesReceived = 0; // including data read ahead
    std::uint64_t sendCalls = 0;
    std::uint64_t receiveCalls = 0;
};

} // namespace wire
