#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace wire {

inline constexpr std::int32_t failureLevel = 2;
inline constexpr std::int32_t misuseLevel = 3;

// Receives what went wrong on a connection: a text, the socket's error number or 0, and one of the levels. May be
// empty.
using TransLogger = std::function<void(const std::string& text, std::int32_t code, std::int32_t level)>;

} // namespace wire
