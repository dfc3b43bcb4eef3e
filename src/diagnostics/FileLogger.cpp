#include "diagnostics/FileLogger.h"

#include "diagnostics/LogLine.h"

#include <boost/filesystem/fstream.hpp>

#include <cstdlib>
#include <utility>

namespace QvxDiagnostics {

FileLogger::FileLogger(std::string path) : path_(std::move(path)) {}

void FileLogger::log(std::uint32_t flags, std::string_view file, std::uint32_t line, std::string_view function,
                     std::string_view level, std::string_view message, const std::vector<std::string>& tags) {
    const bool aborts = (flags & abortAfterLine) != 0;
    // Opened as a plain text stream, which truncates the file: it must never grow.
    boost::filesystem::ofstream stream{boost::filesystem::path(path_)};
    stream << logLine(flags, file, line, function, level, message, tags);
    if (aborts) {
        stream << "Aborting..." << '\n';
    }
    stream.close();
    if (aborts) {
        std::abort();
    }
}

} // namespace QvxDiagnostics
