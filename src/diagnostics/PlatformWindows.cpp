#include "diagnostics/Platform.h"

#include <windows.h>

namespace QvxDiagnostics {

std::uint64_t threadId() {
    return GetCurrentThreadId();
}

std::tm localTime(std::time_t time) {
    std::tm local{};
    localtime_s(&local, &time);
    return local;
}

} // namespace QvxDiagnostics
