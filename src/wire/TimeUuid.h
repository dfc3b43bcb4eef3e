#pragma once

#include <string>

namespace wire {

// A new time-based id as the platform writes it, empty when the platform has none to give.
[[nodiscard]] std::string timeUuid();

} // namespace wire
