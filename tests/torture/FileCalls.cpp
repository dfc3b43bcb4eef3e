// The file calls, intercepted before those of the platform.
#include "tests/torture/FaultPlan.h"
#include "tests/torture/NextFunction.h"
#include "tests/torture/SyncedCopy.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>

using namespace torture;

namespace {

using Open = int(const char*, int, ...);
using Write = ssize_t(int, const void*, std::size_t);
using WriteAt = ssize_t(int, const void*, std::size_t, off_t);
using ReadAt = ssize_t(int, void*, std::size_t, off_t);
using Sync = int(int);
using Truncate = int(int, off_t);

bool isFile(int descriptor) {
    struct stat status {};
    const int error = errno;
    const bool regular = ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
    errno = error;
    return regular;
}

ssize_t failed(int error) {
    errno = error;
    return -1;
}

int openOrFail(Open* next, const char* path, int flags, unsigned mode) {
    return fails(Call::open) ? static_cast<int>(failed(EMFILE)) : next(path, flags, mode);
}

template <class Put>
ssize_t writeOrFail(int descriptor, std::size_t size, Put put) {
    if (!isFile(descriptor)) {
        return put(size);
    }
    switch (nextEffect(Call::write)) {
    case Effect::none:
        return put(size);
    case Effect::writeHalfAndDie:
        (void)put(size / 2);
        die();
    case Effect::die:
        die();
    default:
        return failed(ENOSPC);
    }
}

int syncOrFail(Sync* next, int descriptor) {
    if (fails(Call::sync)) {
        return static_cast<int>(failed(EIO));
    }
    const int result = next(descriptor);
    if (result == 0) {
        keepSyncedCopy(descriptor);
    }
    return result;
}

unsigned modeOf(int flags, std::va_list arguments) {
    return (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, unsigned) : 0;
}

} // namespace

extern "C" {

int open(const char* path, int flags, ...) {
    static auto* const next = nextFunction<Open>("open");
    std::va_list arguments;
    va_start(arguments, flags);
    const unsigned mode = modeOf(flags, arguments);
    va_end(arguments);
    return openOrFail(next, path, flags, mode);
}

int open64(const char* path, int flags, ...) {
    static auto* const next = nextFunction<Open>("open64");
    std::va_list arguments;
    va_start(arguments, flags);
    const unsigned mode = modeOf(flags, arguments);
    va_end(arguments);
    return openOrFail(next, path, flags, mode);
}

ssize_t write(int descriptor, const void* bytes, std::size_t size) {
    static auto* const next = nextFunction<Write>("write");
    return writeOrFail(descriptor, size, [&](std::size_t count) { return next(descriptor, bytes, count); });
}

ssize_t pwrite64(int descriptor, const void* bytes, std::size_t size, off64_t offset) {
    static auto* const next = nextFunction<WriteAt>("pwrite64");
    return writeOrFail(descriptor, size, [&](std::size_t count) { return next(descriptor, bytes, count, offset); });
}

ssize_t pread64(int descriptor, void* bytes, std::size_t size, off64_t offset) {
    static auto* const next = nextFunction<ReadAt>("pread64");
    return fails(Call::read) ? failed(EIO) : next(descriptor, bytes, size, offset);
}

int fsync(int descriptor) {
    static auto* const next = nextFunction<Sync>("fsync");
    return syncOrFail(next, descriptor);
}

int fdatasync(int descriptor) {
    static auto* const next = nextFunction<Sync>("fdatasync");
    return syncOrFail(next, descriptor);
}

int ftruncate64(int descriptor, off64_t size) noexcept {
    static auto* const next = nextFunction<Truncate>("ftruncate64");
    return fails(Call::truncate) ? static_cast<int>(failed(EIO)) : next(descriptor, size);
}

} // extern "C"
