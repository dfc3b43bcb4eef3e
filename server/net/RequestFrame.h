#pragma once

#include <cstdint>
#include <span>

namespace server {

// What a request asks for: the command, and the fields of its Data message, empty when it has none.
struct RequestFrame {
    std::uint16_t opcode = 0;
    std::uint16_t version = 0;
    std::span<const std::uint8_t> fields;
};

// Finds the messages of a frame by their kind. Takes exactly one Command message and at most one Data message, which
// fill the frame; throws Dropped for anything else.
[[nodiscard]] RequestFrame parseRequestFrame(std::uint8_t count, std::span<const std::uint8_t> data);

} // namespace server
