#include "tests/adversity/Mutations.h"

#include <algorithm>
#include <array>

namespace adversity {

void forEachFlippedBit(const Bytes& bytes, const MutationAction& action) {
    Bytes mutated = bytes;
    for (std::size_t bit = 0; bit < bytes.size() * 8; ++bit) {
        auto& byte = mutated[bit / 8];
        const auto mask = static_cast<std::uint8_t>(1U << (bit % 8));
        byte = static_cast<std::uint8_t>(byte ^ mask);
        action(mutated, "bit " + std::to_string(bit % 8) + " of byte " + std::to_string(bit / 8) + " flipped");
        byte = static_cast<std::uint8_t>(byte ^ mask);
    }
}

void forEachReplacedByte(const Bytes& bytes, const MutationAction& action) {
    Bytes mutated = bytes;
    for (std::size_t index = 0; index < bytes.size(); ++index) {
        const std::uint8_t was = bytes[index];
        std::array<std::uint8_t, 7> others{0x00,
                                           0x7F,
                                           0x80,
                                           0xFF,
                                           static_cast<std::uint8_t>(was + 1),
                                           static_cast<std::uint8_t>(was - 1),
                                           static_cast<std::uint8_t>(~was)};
        std::ranges::sort(others);
        const auto rest = std::ranges::unique(others);
        for (auto other = others.begin(); other != rest.begin(); ++other) {
            if (*other == was) {
                continue;
            }
            mutated[index] = *other;
            action(mutated, "byte " + std::to_string(index) + " set to " + std::to_string(*other));
        }
        mutated[index] = was;
    }
}

void forEachTruncation(const Bytes& bytes, const MutationAction& action) {
    for (std::size_t size = 0; size < bytes.size(); ++size) {
        action({bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(size)},
               "cut after " + std::to_string(size) + " bytes");
    }
}

void forEachMissingBeginning(const Bytes& bytes, const MutationAction& action) {
    for (std::size_t size = 1; size < bytes.size(); ++size) {
        action({bytes.begin() + static_cast<std::ptrdiff_t>(size), bytes.end()},
               "the first " + std::to_string(size) + " bytes missing");
    }
}

void forEachMutation(const Bytes& bytes, const MutationAction& action) {
    forEachFlippedBit(bytes, action);
    forEachReplacedByte(bytes, action);
    forEachTruncation(bytes, action);
    forEachMissingBeginning(bytes, action);
}

} // namespace adversity
