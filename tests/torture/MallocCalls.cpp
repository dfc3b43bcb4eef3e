// Intercepts the platform's allocation, for the libraries that use it. Callers may run before anything else does, so
// nothing here needs initialization.
#include "tests/torture/FaultPlan.h"
#include "tests/torture/NextFunction.h"

#include <cstddef>
#include <cstring>

using namespace torture;

namespace {

using Malloc = void*(std::size_t);
using Realloc = void*(void*, std::size_t);

Malloc* nextMalloc = nullptr;
Realloc* nextRealloc = nullptr;

// Calls from the platform's own library never fail, because a sanitizer depends on them.
bool failsFor(const void* caller) {
    const FaultPlan* const plan = currentPlan.load();
    if (plan == nullptr || plan->effect.load() == Effect::none) {
        return false;
    }
    Dl_info info{};
    const bool ofPlatform = ::dladdr(caller, &info) != 0 && std::strstr(info.dli_fname, "/libc.so") != nullptr;
    return !ofPlatform && fails(Call::allocate);
}

} // namespace

extern "C" {

void* malloc(std::size_t size) noexcept {
    if (nextMalloc == nullptr) {
        nextMalloc = nextFunction<Malloc>("malloc");
    }
    return failsFor(__builtin_return_address(0)) ? nullptr : nextMalloc(size);
}

void* realloc(void* memory, std::size_t size) noexcept {
    if (nextRealloc == nullptr) {
        nextRealloc = nextFunction<Realloc>("realloc");
    }
    return failsFor(__builtin_return_address(0)) ? nullptr : nextRealloc(memory, size);
}

} // extern "C"
