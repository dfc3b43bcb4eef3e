#pragma once

#include "platform/Environment.h"

namespace common {

// The machine that the program runs on, as the process sees it.
class SystemEnvironment final : public platform::Environment {
public:
    [[nodiscard]] std::optional<std::string> variable(const std::string& name) const override;
    [[nodiscard]] bool exists(const std::string& path) const override;
    [[nodiscard]] std::string currentFolder() const override;
    [[nodiscard]] platform::DateTime now() const override;
};

} // namespace common
