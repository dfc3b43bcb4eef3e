#pragma once

#include "protocol/LoginStatus.h"
#include "protocol/WireOrder.h"

namespace protocol {

// Whether the server let the user in.
struct LoginReply {
    LoginStatus status = loginStatus::noAnswer;

    static constexpr auto fields = wireOrder(field("status", &LoginReply::status));

    bool operator==(const LoginReply&) const = default;
};

} // namespace protocol
