#pragma once

#include <chrono>
#include <string>

namespace server {

// A time in the format of the wire ("2014-03-05 17:04:09.250"), in the server's local time: consoles show it without
// converting it.
[[nodiscard]] std::string uploadTime(std::chrono::system_clock::time_point moment);

} // namespace server
