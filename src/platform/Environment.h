#pragma once

#include "platform/DateTime.h"

#include <optional>
#include <string>

namespace platform {

// What the console asks of the machine that it runs on. Names and paths are in the user's code page. The default is a
// machine of which nothing is known.
class Environment {
public:
    virtual ~Environment() = default;

    // A variable of the environment; empty when it is not set.
    virtual std::optional<std::string> variable(const std::string& /*name*/) const { return std::nullopt; }
    // Whether there is anything under the path: a file, a folder, or something else. False also where nobody may look.
    virtual bool exists(const std::string& /*path*/) const { return false; }
    // Without a separator at the end, unless it is the root; empty when the folder has gone.
    virtual std::string currentFolder() const { return {}; }
    // What the user's clock shows.
    virtual DateTime now() const { return {}; }
};

inline const Environment unknownEnvironment{};

} // namespace platform
