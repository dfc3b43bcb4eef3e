#include "server/service/MemoryReserve.h"

#include <atomic>
#include <cstdlib>
#include <cstring>
#include <new>

namespace server {

namespace {

// Small enough for the allocator to reuse it for small allocations.
constexpr std::size_t reserveSize = 65536;

std::atomic<void*> reserve = nullptr;

void giveUpReserve() {
    void* const held = reserve.exchange(nullptr);
    if (held == nullptr) {
        throw std::bad_alloc();
    }
    std::free(held);
}

} // namespace

void MemoryReserve::install() {
    refill();
    std::set_new_handler(&giveUpReserve);
}

void MemoryReserve::refill() noexcept {
    if (reserve != nullptr) {
        return;
    }
    void* const fresh = std::malloc(reserveSize);
    if (fresh != nullptr) {
        std::memset(fresh, 1, reserveSize); // memory that was never written may not really exist
    }
    std::free(reserve.exchange(fresh));
}

} // namespace server
