#pragma once

#include <cstdint>

namespace protocol {

// The server's answer to a login.
using LoginStatus = std::uint16_t;

namespace loginStatus {
constexpr LoginStatus noAnswer = 0; // never sent: what a console takes when it got no answer
constexpr LoginStatus loggedIn = 1;
constexpr LoginStatus wrongCredentials = 2;
constexpr LoginStatus wrongVersion = 3;
} // namespace loginStatus

} // namespace protocol
