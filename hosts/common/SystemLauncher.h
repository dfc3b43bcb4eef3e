#pragma once

#include "platform/ProcessLauncher.h"

namespace common {

// Starts programs as children of the system rather than of this process, in sessions of their own: they outlive it and
// leave nothing behind in it. Their standard streams are /dev/null.
class SystemLauncher final : public platform::ProcessLauncher {
public:
    std::error_code start(const wire::WideString& program, const std::vector<wire::WideString>& arguments) override;
};

} // namespace common
