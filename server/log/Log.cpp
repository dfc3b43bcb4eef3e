#include "server/log/Log.h"

#include <spdlog/sinks/stdout_sinks.h>
#include <spdlog/spdlog.h>

#include <memory>

namespace server::log {

void toStandardError() {
    spdlog::set_default_logger(
        std::make_shared<spdlog::logger>("vantreld", std::make_shared<spdlog::sinks::stderr_sink_mt>()));
    spdlog::set_pattern("%Y-%m-%d %H:%M:%S.%e %l: %v");
}

void silence() {
    spdlog::set_level(spdlog::level::off);
}

// The library does not report errors of its own writing.

void info(std::string_view line) noexcept {
    spdlog::info("{}", line);
}

void warn(std::string_view line) noexcept {
    spdlog::warn("{}", line);
}

void info(std::string_view subject, std::string_view text) noexcept {
    spdlog::info("{}: {}", subject, text);
}

void warn(std::string_view subject, std::string_view text) noexcept {
    spdlog::warn("{}: {}", subject, text);
}

void error(std::string_view subject, std::string_view text) noexcept {
    spdlog::error("{}: {}", subject, text);
}

} // namespace server::log
