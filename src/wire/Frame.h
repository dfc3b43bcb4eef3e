#pragma once

#include <array>
#include <cstdint>
#include <span>

// The unit on the TCP stream, in both directions:
//
//     frame = count:u8 size:u32 checksum:u32 data      data: count messages, size bytes in all
namespace wire {

// The largest size that a receiver accepts; it does not limit a sender.
constexpr std::uint32_t QVX_MAX_MESSAGE_SIZE = 128000;

constexpr std::uint32_t frameHeaderSize = 9;

struct FrameHeader {
    std::uint8_t count = 0;
    std::uint32_t size = 0;
    std::uint32_t checksum = 0;
};

[[nodiscard]] std::array<std::uint8_t, frameHeaderSize> encodeFrameHeader(const FrameHeader& header);
[[nodiscard]] FrameHeader decodeFrameHeader(std::span<const std::uint8_t, frameHeaderSize> bytes);

// The sum of all bytes in 32 bits, which wrap.
[[nodiscard]] std::uint32_t frameChecksum(std::span<const std::uint8_t> data);

} // namespace wire
