#pragma once

#include "diagnostics/LoggerI.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace QvxDiagnostics {

// Writes log lines to a text file, which it truncates for each line, so that the file holds only the latest. If the
// file can't be opened, nothing is written and no error is reported. Takes no lock.
class FileLogger : public LoggerI {
public:
    explicit FileLogger(std::string path);

    void log(std::uint32_t flags, std::string_view file, std::uint32_t line, std::string_view function,
             std::string_view level, std::string_view message, const std::vector<std::string>& tags) override;

private:
    std::string path_;
};

} // namespace QvxDiagnostics
