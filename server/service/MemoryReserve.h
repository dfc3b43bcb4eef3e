#pragma once

namespace server {

// Memory put aside for the moment when there is no other: whoever asks for some then gets it after all, so that what
// was begun can be ended. When that is gone too, asking throws std::bad_alloc as usual. Belongs to the whole program.
class MemoryReserve {
public:
    // From now on the program has a reserve.
    static void install();

    // Puts it aside again after it was used, if there is memory.
    static void refill() noexcept;
};

} // namespace server
