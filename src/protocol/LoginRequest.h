#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Opens a login; the three sealed credentials follow it as raw blocks.
struct LoginRequest {
    static constexpr std::uint16_t opcode = 22;

    std::uint16_t first = 3; // the server expects these two numbers as they are
    std::uint16_t second = 0;

    static constexpr auto fields =
        wireOrder(field("first", &LoginRequest::first), field("second", &LoginRequest::second));

    bool operator==(const LoginRequest&) const = default;
};

} // namespace protocol
