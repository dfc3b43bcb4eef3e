// The allocation of the platform, for the libraries that use it. What asks for it may run before anything else does, so
// nothing here needs to be set up.
#include "tests/torture/FaultPlan.h"
#include "tests/torture/NextFunction.h"

#include <cstddef>

using namespace torture;

namespace {

using Malloc = void*(std::size_t);
using Realloc = void*(void*, std::size_t);

Malloc* nextMalloc = nullptr;
Realloc* nextRealloc = nullptr;

} // namespace

extern "C" {

void* malloc(std::size_t size) noexcept {
    if (nextMalloc == nullptr)
        nextMalloc = nextFunction<Malloc>("malloc");
    return fails(Call::allocate) ? nullptr : nextMalloc(size);
}

void* realloc(void* memory, std::size_t size) noexcept {
    if (nextRealloc == nullptr)
        nextRealloc = nextFunction<Realloc>("realloc");
    return fails(Call::allocate) ? nullptr : nextRealloc(memory, size);
}

} // extern "C"
