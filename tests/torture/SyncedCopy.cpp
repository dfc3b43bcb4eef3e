#include "tests/torture/SyncedCopy.h"

#include "tests/torture/FaultPlan.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <climits>
#include <cstring>
#include <string>

namespace torture {

void keepSyncedCopy(int descriptor) {
    const FaultPlan* const plan = currentPlan.load();
    if (plan == nullptr || !plan->keepsSynced.load()) {
        return;
    }
    std::array<char, PATH_MAX> path{};
    const auto link = "/proc/self/fd/" + std::to_string(descriptor);
    constexpr std::string_view ending = ".synced";
    const auto length = ::readlink(link.c_str(), path.data(), path.size() - ending.size() - 1);
    struct stat status {};
    if (length <= 0 || ::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
        return;
    }
    std::memcpy(path.data() + length, ending.data(), ending.size());
    // Uses raw system calls, which are not intercepted.
    const auto copy = static_cast<int>(
        ::syscall(SYS_openat, AT_FDCWD, path.data(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, S_IRUSR | S_IWUSR));
    loff_t offset = 0;
    while (offset < status.st_size) {
        const auto left = static_cast<std::size_t>(status.st_size - offset);
        if (::copy_file_range(descriptor, &offset, copy, nullptr, left, 0) <= 0) {
            break;
        }
    }
    ::syscall(SYS_close, copy);
}

} // namespace torture
