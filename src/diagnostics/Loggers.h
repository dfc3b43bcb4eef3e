#pragma once

#include "diagnostics/LoggerI.h"

#include <memory>

namespace QvxDiagnostics {

// Loggers stay in the list until the process exits. May be called from any thread.
void addLogger(std::unique_ptr<LoggerI> logger);

// Passes one line to every logger in the order in which they were added. May be called from any thread.
void log(std::uint32_t flags, std::string_view file, std::uint32_t line, std::string_view function,
         std::string_view level, std::string_view message, const std::vector<std::string>& tags = {});

} // namespace QvxDiagnostics
