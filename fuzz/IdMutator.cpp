#include "fuzz/MemoryEstate.h"

#include <algorithm>
#include <cstring>
#include <random>

// Sometimes changes a request so that it names a record of the estate, because random bytes never match an id.

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned int seed) {
    static const auto ids = fuzz::memoryEstate().ids();
    std::minstd_rand random(seed);
    if (ids.empty() || random() % 4 != 0) {
        return LLVMFuzzerMutate(data, size, maxSize);
    }
    const auto& id = ids[random() % ids.size()];
    const std::size_t taken = id.size() + 2;
    const std::size_t at = 1 + random() % std::max<std::size_t>(size, 1);
    // Replaces an empty text if there is one here, so that the following fields stay aligned.
    const bool replaces = at + 2 <= size && data[at] == 0 && data[at + 1] == 0;
    const std::size_t from = std::min(size, at + (replaces ? 2U : 0U));
    const std::size_t moved = size - std::min(from, size);
    if (at > size || at + taken + moved > maxSize) {
        return LLVMFuzzerMutate(data, size, maxSize);
    }
    std::memmove(data + at + taken, data + from, moved);
    data[at] = static_cast<std::uint8_t>(id.size());
    data[at + 1] = 0;
    std::memcpy(data + at + 2, id.data(), id.size());
    return at + taken + moved;
}
