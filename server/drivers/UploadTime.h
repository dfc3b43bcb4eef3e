#pragma once

#include <chrono>
#include <string>

namespace server {

// A moment in the form of the wire ("2014-03-05 17:04:09.250"), by the clock on the wall where the server runs:
// consoles show it as it comes.
[[nodiscard]] std::string uploadTime(std::chrono::system_clock::time_point moment);

} // namespace server
