#pragma once

namespace QvxDiagnostics {

// Adds the log of the Management Console, C:\tmp\mmc_log.txt, for as long as the program runs. Programs elsewhere than
// on Windows bring a log of their own.
void installFileLogger();

} // namespace QvxDiagnostics
