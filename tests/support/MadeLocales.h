#pragma once

#include "tests/support/Environment.h"

#include <filesystem>
#include <initializer_list>
#include <optional>
#include <string>

namespace support {

// Locales of the system made for a test in a folder of its own, in which the C library of this program and of those
// that it starts looks for them; it need not have them installed. The sources come with the package "locales".
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
