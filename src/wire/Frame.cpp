#include "wire/Frame.h"

#include <algorithm>
#include <cstring>

namespace wire {

std::array<std::uint8_t, frameHeaderSize> encodeFrameHeader(const FrameHeader& header) {
    std::array<std::uint8_t, frameHeaderSize> bytes{};
    bytes[0] = header.count;
    std::memcpy(&bytes[1], &header.size, sizeof header.size);
    std::memcpy(&bytes[5], &header.checksum, sizeof header.checksum);
    return bytes;
}

FrameHeader decodeFrameHeader(std::span<const std::uint8_t, frameHeaderSize> bytes) {
    FrameHeader header;
    header.count = bytes[0];
    std::memcpy(&header.size, &bytes[1], sizeof header.size);
    std::memcpy(&header.checksum, &bytes[5], sizeof header.checksum);
    return header;
}

std::uint32_t frameChecksum(std::span<const std::uint8_t> data) {
    // Eight bytes at a time into four sums of 16 bits each, two of them per word; after 128 words a sum is at most
    // 65,280 and is emptied into the total.
    constexpr std::uint64_t evenBytes = 0x00FF00FF00FF00FF;
    constexpr std::uint64_t evenPairs = 0x0000FFFF0000FFFF;
    constexpr std::size_t word = sizeof(std::uint64_t);
    constexpr std::size_t wordsAtOnce = 128;

    std::uint32_t total = 0;
    const std::uint8_t* next = data.data();
    std::size_t words = data.size() / word;
    while (words != 0) {
        const std::size_t block = std::min(words, wordsAtOnce);
        std::uint64_t sums = 0;
        for (std::size_t index = 0; index < block; ++index) {
            std::uint64_t bytes = 0;
            std::memcpy(&bytes, next + index * word, word);
            sums += (bytes & evenBytes) + ((bytes >> 8) & evenBytes);
        }
        const std::uint64_t pairs = (sums & evenPairs) + ((sums >> 16) & evenPairs);
        total += static_cast<std::uint32_t>(pairs) + static_cast<std::uint32_t>(pairs >> 32);
        next += block * word;
        words -= block;
    }
    for (std::size_t rest = data.size() % word; rest != 0; --rest) {
        total += *next++;
    }
    return total;
}

} // namespace wire
