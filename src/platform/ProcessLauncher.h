#pragma once

#include "wire/Text.h"

#include <system_error>
#include <vector>

namespace platform {

// Starts other programs. The default starts none.
class ProcessLauncher {
public:
    virtual ~ProcessLauncher() = default;

    // Starts the program that stands under the path, and does not wait for it: what becomes of it, nobody hears. It
    // gets the environment and the current folder of this one, and nothing of what is open here. The error says why it
    // could not be started.
    virtual std::error_code start(const wire::WideString& /*program*/,
                                  const std::vector<wire::WideString>& /*arguments*/) {
        return std::make_error_code(std::errc::function_not_supported);
    }
};

// Keeps no state, so that one serves everybody.
inline ProcessLauncher noLauncher{};

} // namespace platform
