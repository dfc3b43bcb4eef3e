#pragma once

#include <cstdint>

namespace protocol {

// Which of the two region trees a command means; their ids have no relation to each other.
enum class RegionKind : std::uint8_t {
    printersAndQueues = 0,
    localPrinters = 1,
};

} // namespace protocol
