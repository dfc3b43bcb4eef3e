#include "snapin/LoginThread.h"

#include "platform/Guard.h"
#include "snapin/AuthenticationDlg.h"

#include <array>

namespace snapin {
namespace {

using platform::Key;

// These keys carry their scan codes and the flag of an extended key, unlike those that nodes press; only a host that
// injects keys can tell the difference.
void press(platform::Platform& platform, Key key) {
    platform.ui.press(std::array{key});
}

void logIn(platform::Platform& platform, platform::WindowHandle mainWindow) {
    AuthenticationDlg dialog(platform);
    platform.ui.runModal(dialog, mainWindow);
    loginDone = 1;
    if (dialog.status() != AuthenticationStatus::connected) {
        platform.ui.close(mainWindow);
        return;
    }
    platform.ui.setForeground(mainWindow);
    press(platform, Key::up);
    platform.ui.messageBox(mainWindow, dialog.statusText(), u"Success!", platform::boxStyle::iconInformation);
}

} // namespace

void runLoginThread(platform::Platform& platform, platform::WindowHandle mainWindow) {
    platform::guarded(
        platform, [] { return std::string("login"); },
        [&] {
            if (loginDone == 0) {
                logIn(platform, mainWindow);
            }
            press(platform, Key::f5);
        });
}

} // namespace snapin
