// The allocating operators, intercepted before those of the library.
#include "tests/torture/FaultPlan.h"
#include "tests/torture/NextFunction.h"

#include <new>

using namespace torture;

namespace {

// Like the library's operators: calls the new-handler as long as there is one.
template <class Function, class... Arguments>
void* allocateOrThrow(Function* next, Arguments... arguments) {
    while (fails(Call::allocate)) {
        const auto handler = std::get_new_handler();
        if (handler == nullptr) {
            throw std::bad_alloc();
        }
        handler();
    }
    return next(arguments...);
}

} // namespace

void* operator new(std::size_t size) {
    static auto* const next = nextFunction<void*(std::size_t)>("_Znwm");
    return allocateOrThrow(next, size);
}

void* operator new[](std::size_t size) {
    static auto* const next = nextFunction<void*(std::size_t)>("_Znam");
    return allocateOrThrow(next, size);
}

void* operator new(std::size_t size, std::align_val_t alignment) {
    static auto* const next = nextFunction<void*(std::size_t, std::align_val_t)>("_ZnwmSt11align_val_t");
    return allocateOrThrow(next, size, alignment);
}

void* operator new(std::size_t size, const std::nothrow_t& nothrow) noexcept {
    static auto* const next = nextFunction<void*(std::size_t, const std::nothrow_t&)>("_ZnwmRKSt9nothrow_t");
    return fails(Call::allocate) ? nullptr : next(size, nothrow);
}
