#pragma once

#include "tests/support/Environment.h"

#include <filesystem>
#include <initializer_list>
#include <optional>
#include <string>

namespace support {

// System locales compiled for a test into a temporary folder, where the C library of this program and its children
// finds them; they need not be installed. The sources come with the package "locales".
class MadeLocales {
public:
    // Names such as "de_DE.UTF-8". Throws std::runtime_error when one can't be made.
    explicit MadeLocales(std::initializer_list<std::string> names);
    ~MadeLocales();
    MadeLocales(const MadeLocales&) = delete;
    MadeLocales& operator=(const MadeLocales&) = delete;

private:
    std::filesystem::path folder_;
    std::optional<EnvironmentVariable> searched_;
};

} // namespace support
