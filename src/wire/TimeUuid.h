#pragma once

#include <string>

namespace wire {

// A new time-based id as the platform writes it, empty when the platform can't create one.
[[nodiscard]] std::string timeUuid();

} // namespace wire
