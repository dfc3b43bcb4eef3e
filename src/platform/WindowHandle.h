#pragma once

#include <cstdint>

namespace platform {

// A window of the host, only ever passed back to it; 0 is none.
using WindowHandle = std::intptr_t;

} // namespace platform
