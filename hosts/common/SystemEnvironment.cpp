#include "hosts/common/SystemEnvironment.h"

#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <system_error>

namespace common {

std::optional<std::string> SystemEnvironment::variable(const std::string& name) const {
    const char* const value = std::getenv(name.c_str());
    return value != nullptr ? std::optional<std::string>(value) : std::nullopt;
}

bool SystemEnvironment::exists(const std::string& path) const {
    std::error_code error;
    return std::filesystem::exists(path, error);
}

std::string SystemEnvironment::currentFolder() const {
    std::error_code error;
    return std::filesystem::current_path(error).string();
}

platform::DateTime SystemEnvironment::now() const {
    const std::time_t seconds = std::time(nullptr);
    std::tm local{};
    ::tzset(); // localtime_r need not check whether the zone has changed
    ::localtime_r(&seconds, &local);
    return {.year = static_cast<std::int16_t>(local.tm_year + 1900),
            .month = static_cast<std::int8_t>(local.tm_mon + 1),
            .day = static_cast<std::int8_t>(local.tm_mday),
            .hour = static_cast<std::int8_t>(local.tm_hour),
            .minute = static_cast<std::int8_t>(local.tm_min),
            .second =
                static_cast<std::int8_t>(local.tm_sec == 60 ? 59 : local.tm_sec)}; // leap seconds are not valid here
}

} // namespace common
