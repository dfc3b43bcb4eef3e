#pragma once

#include <cstdint>
#include <string>

namespace client {

// What the command observer is told of a command on a region.
[[nodiscard]] inline std::string regionSummary(std::int32_t id) {
    return "region " + std::to_string(id);
}

} // namespace client
