#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace QvxDiagnostics {

// A log line with its line end, followed by the stack dump if requested. Items are separated by "|".
[[nodiscard]] std::string logLine(std::uint32_t flags, std::string_view file, std::uint32_t line,
                                  std::string_view function, std::string_view level, std::string_view message,
                                  const std::vector<std::string>& tags);

} // namespace QvxDiagnostics
