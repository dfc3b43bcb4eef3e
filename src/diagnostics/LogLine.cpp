#include "diagnostics/LogLine.h"

#include "diagnostics/CallStack.h"
#include "diagnostics/LoggerI.h"
#include "diagnostics/Platform.h"

#include <chrono>
#include <ctime>
#include <iomanip>
#include <sstream>

namespace QvxDiagnostics {

namespace {

constexpr std::string_view separator = "|";

void writeTimeStamp(std::ostream& text) {
    const auto now = std::chrono::system_clock::now();
    const auto second = std::chrono::floor<std::chrono::seconds>(now);
    const auto milliseconds = std::chrono::floor<std::chrono::milliseconds>(now - second);
    const std::tm time = localTime(std::chrono::system_clock::to_time_t(second));
    text << std::put_time(&time, "%Y-%m-%d %H:%M:%S") << '.' << std::setw(3) << std::setfill('0')
         << milliseconds.count() << separator;
}

} // namespace

std::string logLine(std::uint32_t flags, std::string_view file, std::uint32_t line, std::string_view function,
                    std::string_view level, std::string_view message, const std::vector<std::string>& tags) {
    std::ostringstream text;
    text.imbue(std::locale::classic());
    if ((flags & withTimeStamp) != 0) {
        writeTimeStamp(text);
    }
    text << level;
    if ((flags & withThreadId) != 0) {
        text << separator << threadId();
    }
    if ((flags & withSource) != 0) {
        text << separator << file << separator << line << separator << function;
    }
    if ((flags & withoutMessage) == 0) {
        text << separator << message;
    }
    if ((flags & withoutTags) == 0) {
        const std::string_view tagSeparator = (flags & tagsOnSameLine) != 0 ? separator : "\r\n\t";
        for (const std::string& tag : tags) {
            text << tagSeparator << '[' << tag << ']';
        }
    }
    if ((flags & withStackDump) != 0) {
        text << '\n' << stackDump();
    }
    text << '\n';
    return text.str();
}

} // namespace QvxDiagnostics
