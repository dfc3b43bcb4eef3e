#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace QvxDiagnostics {

// What a log line shows and what follows it; combined by |.
enum LogFlags : std::uint32_t {
    abortAfterLine = 0x01,
    tagsOnSameLine = 0x02,
    withTimeStamp = 0x04,
    withStackDump = 0x08,
    withoutMessage = 0x10,
    withSource = 0x20, // file, line and function
    withoutTags = 0x40,
    withThreadId = 0x80,
};

// A destination for log lines.
struct LoggerI {
    virtual ~LoggerI() = default;

    virtual void log(std::uint32_t flags, std::string_view file, std::uint32_t line, std::string_view function,
                     std::string_view level, std::string_view message, const std::vector<std::string>& tags) = 0;
};

} // namespace QvxDiagnostics
