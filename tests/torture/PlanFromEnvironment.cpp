// In a process started by another one: the plan that the other has made.
#include "tests/torture/FaultPlan.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstdlib>

namespace {

[[gnu::constructor]] void takePlan() {
    const char* const path = std::getenv("VANTREL_FAULT_PLAN");
    if (path == nullptr) {
        return;
    }
    const auto file = static_cast<int>(::syscall(SYS_openat, AT_FDCWD, path, O_RDWR | O_CLOEXEC, 0));
    void* const memory = ::mmap(nullptr, sizeof(torture::FaultPlan), PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
    ::syscall(SYS_close, file);
    if (memory != MAP_FAILED) {
        torture::currentPlan = static_cast<torture::FaultPlan*>(memory);
    }
}

} // namespace
