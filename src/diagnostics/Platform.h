#pragma once

#include <cstdint>
#include <ctime>

// What diagnostics needs to know from the platform.
namespace QvxDiagnostics {

// The id by which the platform's own tools identify the calling thread.
[[nodiscard]] std::uint64_t threadId();

[[nodiscard]] std::tm localTime(std::time_t time);

} // namespace QvxDiagnostics
