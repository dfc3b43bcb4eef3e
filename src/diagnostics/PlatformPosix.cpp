#include "diagnostics/Platform.h"

#include <sys/syscall.h>
#include <unistd.h>

namespace QvxDiagnostics {

std::uint64_t threadId() {
    return static_cast<std::uint64_t>(::syscall(SYS_gettid));
}

std::tm localTime(std::time_t time) {
    std::tm local{};
    ::localtime_r(&time, &local);
    return local;
}

} // namespace QvxDiagnostics
