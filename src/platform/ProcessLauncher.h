#pragma once

#include "wire/Text.h"

#include <system_error>
#include <vector>

namespace platform {

// Starts other programs. The default starts none.
class ProcessLauncher {
public:
    virtual ~ProcessLauncher() = default;

    // Starts the program at the path and does not wait for it; its outcome is not reported. It gets this program's
    // environment and current folder, and none of its open files. The error says why it could not be started.
    virtual std::error_code start(const wire::WideString& /*program*/,
                                  const std::vector<wire::WideString>& /*arguments*/) {
        return std::make_error_code(std::errc::function_not_supported);
    }
};

// Has no state, so that one instance serves all.
inline ProcessLauncher noLauncher{};

} // namespace platform
