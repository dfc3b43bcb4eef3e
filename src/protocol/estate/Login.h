#pragma once

#include "protocol/WireOrder.h"

#include <cstdint>

namespace protocol {

// The server's answer to a login.
using LoginStatus = std::uint16_t;

namespace loginStatus {
constexpr LoginStatus noAnswer = 0; // never sent: used by a console that got no answer
constexpr LoginStatus loggedIn = 1;
constexpr LoginStatus wrongCredentials = 2;
constexpr LoginStatus wrongVersion = 3;
} // namespace loginStatus

// Opens a login; the three sealed credentials follow it as raw blocks.
struct LoginRequest {
    static constexpr std::uint16_t opcode = 22;

    std::uint16_t first = 3; // the server expects these two numbers as they are
    std::uint16_t second = 0;

    static constexpr auto fields =
        wireOrder(field("first", &LoginRequest::first), field("second", &LoginRequest::second));

    bool operator==(const LoginRequest&) const = default;
};

// Whether the server let the user in.
struct LoginReply {
    LoginStatus status = loginStatus::noAnswer;

    static constexpr auto fields = wireOrder(field("status", &LoginReply::status));

    bool operator==(const LoginReply&) const = default;
};

// Asks for the key that seals the credentials of a login; it has no fields.
struct GetPublicKeyRequest {
    static constexpr std::uint16_t opcode = 78;

    static constexpr auto fields = wireOrder();

    bool operator==(const GetPublicKeyRequest&) const = default;
};

// Precedes the key, which follows as a raw block; consoles use neither value.
struct GetPublicKeyReply {
    std::string text;
    std::uint32_t number = 0;

    static constexpr auto fields =
        wireOrder(field("text", &GetPublicKeyReply::text), field("number", &GetPublicKeyReply::number));

    bool operator==(const GetPublicKeyReply&) const = default;
};

} // namespace protocol
