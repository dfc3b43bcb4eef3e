#pragma once

#include "diagnostics/LoggerI.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

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

} // namespace QvxDiagnostics
