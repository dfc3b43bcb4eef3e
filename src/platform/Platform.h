#pragma once

#include "client/ClientHooks.h"
#include "platform/Environment.h"
#include "platform/Locale.h"
#include "platform/ProcessLauncher.h"
#include "platform/SettingsStore.h"
#include "platform/UserInterface.h"

#include <array>
#include <cstdint>
#include <optional>

namespace platform {

// Everything that a host lends to the console's nodes and forms. It outlives them all.
struct Platform {
    UserInterface& ui;
    SettingsStore& settings;
    client::ClientHooks hooks{}; // these observe commands and show the server's refusals
    std::optional<std::array<std::uint16_t, 4>> productVersion{}; // of the module; empty when it can't be read
    const Locale& locale = plainLocale;                           // how the user writes numbers
    const Environment& environment = unknownEnvironment;          // the machine that the program runs on
    ProcessLauncher& launcher = noLauncher;                       // starts other programs
};

} // namespace platform
