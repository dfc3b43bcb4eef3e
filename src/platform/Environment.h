#pragma once

#include "platform/DateTime.h"

#include <optional>
#include <string>

namespace platform {

// What the console asks about the machine that it runs on. Names and paths are in the user's code page. By default
// nothing is known about the machine.
class Environment {
public:
    virtual ~Environment() = default;

    // A variable of the environment; empty when it is not set.
    [[nodiscard]] virtual std::optional<std::string> variable(const std::string& /*name*/) const {
        return std::nullopt;
    }
    // Whether the path exists: a file, a folder, or something else. Also false without the permission to look.
    [[nodiscard]] virtual bool exists(const std::string& /*path*/) const { return false; }
    // Without a separator at the end, unless it is the root; empty when the folder no longer exists.
    [[nodiscard]] virtual std::string currentFolder() const { return {}; }
    // The date and time on the user's clock.
    [[nodiscard]] virtual DateTime now() const { return {}; }
};

inline const Environment unknownEnvironment{};

} // namespace platform
