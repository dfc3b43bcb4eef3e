#pragma once

#include <cstdint>
#include <ctime>
#include <string>

// What diagnostics needs to know from the platform.
namespace QvxDiagnostics {

// The id by which the platform's own tools identify the calling thread.
[[nodiscard]] std::uint64_t threadId();

[[nodiscard]] std::tm localTime(std::time_t time);

// Where the console's own log file is: "C:\tmp\mmc_log.txt" on Windows, mmc_log.txt in the folder for temporary files
// elsewhere.
[[nodiscard]] std::string logFilePath();

} // namespace QvxDiagnostics
