#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace wire {

// Told what went wrong on a connection: a text, the socket's error number or 0, and a level of 2 or 3. May be empty.
using TransLogger = std::function<void(const std::string& text, std::int32_t code, std::int32_t level)>;

} // namespace wire
