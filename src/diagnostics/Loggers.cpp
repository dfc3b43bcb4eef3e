#include "diagnostics/Loggers.h"

#include <mutex>
#include <utility>

namespace QvxDiagnostics {

namespace {

struct LoggerList {
    std::mutex mutex;
    std::vector<std::unique_ptr<LoggerI>> loggers;
};

// Created at first use and destroyed, with the loggers, when the process exits.
LoggerList& loggerList() {
    static LoggerList list;
    return list;
}

} // namespace

void addLogger(std::unique_ptr<LoggerI> logger) {
    LoggerList& list = loggerList();
    const std::lock_guard lock(list.mutex);
    list.loggers.push_back(std::move(logger));
}

void log(std::uint32_t flags, std::string_view file, std::uint32_t line, std::string_view function,
         std::string_view level, std::string_view message, const std::vector<std::string>& tags) {
    // No logger ever leaves the list, so that a copy of the pointers stays valid. The lines themselves are written
    // without the mutex, because a logger may end the process.
    std::vector<LoggerI*> loggers;
    {
        LoggerList& list = loggerList();
        const std::lock_guard lock(list.mutex);
        loggers.reserve(list.loggers.size());
        for (const auto& logger : list.loggers) {
            loggers.push_back(logger.get());
        }
    }
    for (LoggerI* const logger : loggers) {
        logger->log(flags, file, line, function, level, message, tags);
    }
}

} // namespace QvxDiagnostics
