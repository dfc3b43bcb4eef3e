#include "diagnostics/WindowsLog.h"

#include "diagnostics/FileLogger.h"
#include "diagnostics/Loggers.h"

#include <memory>

namespace QvxDiagnostics {

void installFileLogger() {
    addLogger(std::make_unique<FileLogger>("C:\\tmp\\mmc_log.txt"));
}

} // namespace QvxDiagnostics
