#pragma once

#include "diagnostics/LoggerI.h"

namespace QvxDiagnostics {

// Writes log lines to a text file, which it opens anew for each line, so that the file holds the latest one. A file
// that can't be opened is no error: nothing is written then. Takes no lock.
class FileLogger : public LoggerI {
public:
    explicit FileLogger(std::string path);

    void log(std::uint32_t flags, std::string_view file, std::uint32_t line, std::string_view function,
             std::string_view level, std::string_view message, const std::vector<std::string>& tags) override;

private:
    std::string path_;
};

// Adds a file logger with the console's own log file.
void installFileLogger();

// Where that file is: "C:\tmp\mmc_log.txt" on Windows, mmc_log.txt in the folder for temporary files elsewhere.
[[nodiscard]] std::string logFilePath();

} // namespace QvxDiagnostics
