#pragma once

#include "hosts/desktop/list/ViewSettings.h"
#include "hosts/desktop/window/DesktopUserInterface.h"
#include "platform/Platform.h"

#include <functional>

namespace desktop {

// Logs in again, here or at another server, while the window stays open with what it shows.
class LoginKeeper {
public:
    // All outlive it.
    LoginKeeper(platform::Platform& platform, DesktopUserInterface& ui, ViewSettings& settings)
        : platform_(platform), ui_(ui), settings_(settings) {}

    // Shows the login dialog with everything but the password. False when it was given up: then everything is as
    // before.
    bool logIn(const ServerLogin& wanted);
    // The same for whoever is logged in.
    bool logInAgain() { return logIn(current()); }
    // Says that the server accepts no commands until somebody logs in, and offers that.
    bool offer();

    // Where the console is logged in, or was; empty before the first login.
    [[nodiscard]] static ServerLogin current();
    // Puts it on top of the recent logins.
    void remember() const;
    [[nodiscard]] std::vector<ServerLogin> recent() const { return settings_.logins(); }

    // Called after a login at another server than before.
    std::function<void()> onOtherServer;

private:
    platform::Platform& platform_;
    DesktopUserInterface& ui_;
    ViewSettings& settings_;
};

} // namespace desktop
