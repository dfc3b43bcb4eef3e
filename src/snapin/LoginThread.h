#pragma once

#include "platform/Platform.h"

#include <atomic>
#include <cstdint>

namespace snapin {

// Not 0 once a login dialog has been run in this process. Written by the thread of the login, read by any.
inline std::atomic<std::uint32_t> loginDone{0};

// What the thread does that is started with the console: logs in, once in a process, and then makes the console show
// what stands on the server. A login that does not succeed closes the console's main window, since without a server
// there is nothing to administer. Keeps nothing of the snap-in but the window's handle, and lets no exception out.
void runLoginThread(platform::Platform& platform, platform::WindowHandle mainWindow);

} // namespace snapin
