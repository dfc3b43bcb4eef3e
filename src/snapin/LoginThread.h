#pragma once

#include "platform/Platform.h"

#include <atomic>
#include <cstdint>

namespace snapin {

// Not 0 once a login dialog has been run in this process. Written by the login's thread, read by any.
inline std::atomic<std::uint32_t> loginDone{0};

// Runs on the thread that is started with the console: logs in, once per process, and then makes the console show what
// is on the server. A failed login closes the console's main window, because without a server there is nothing to
// administer. Keeps nothing of the snap-in but the window's handle, and lets no exception out.
void runLoginThread(platform::Platform& platform, platform::WindowHandle mainWindow);

} // namespace snapin
