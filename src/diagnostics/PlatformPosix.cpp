#include "diagnostics/Platform.h"

#include <boost/filesystem/operations.hpp>

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

std::string logFilePath() {
    boost::system::error_code error;
    const boost::filesystem::path folder = boost::filesystem::temp_directory_path(error);
    return ((error ? boost::filesystem::path("/tmp") : folder) / "mmc_log.txt").string();
}

} // namespace QvxDiagnostics
