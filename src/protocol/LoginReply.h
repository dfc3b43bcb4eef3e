#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Whether the server let the user in.
struct LoginReply {
    std::uint16_t status = 0; // a LoginStatus

    static constexpr auto fields = wireOrder(field("status", &LoginReply::status));

    bool operator==(const LoginReply&) const = default;
};

} // namespace protocol
