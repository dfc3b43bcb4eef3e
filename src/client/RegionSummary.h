#pragma once

#include <cstdint>
#include <string>

namespace client {

// The summary of a command on a region, for the command observer.
[[nodiscard]] inline std::string regionSummary(std::int32_t id) {
    return "region " + std::to_string(id);
}

} // namespace client
