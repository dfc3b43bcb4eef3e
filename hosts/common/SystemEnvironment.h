#pragma once

#include "platform/Environment.h"

namespace common {

// The machine that the program runs on, as the process sees it.
class SystemEnvironment final : public platform::Environment {
public:
    std::optional<std::string> variable(const std::string& name) const override;
    bool exists(const std::string& path) const override;
    std::string currentFolder() const override;
    platform::DateTime now() const override;
};

} // namespace common
