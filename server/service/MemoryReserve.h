#pragma once

namespace server {

// Memory put aside for when there is no other: an allocation that would fail then succeeds, so that work in progress
// can finish. Once the reserve is used up too, allocations throw std::bad_alloc as usual. Global to the program.
class MemoryReserve {
public:
    // Gives the program a reserve.
    static void install();

    // Puts a reserve aside again after it was used, if there is memory.
    static void refill() noexcept;
};

} // namespace server
