#pragma once

#include <cstdint>

namespace protocol {

// The server's answer to a login.
namespace loginStatus {
constexpr std::uint16_t noAnswer = 0; // never sent: what a console takes when it got no answer
constexpr std::uint16_t loggedIn = 1;
constexpr std::uint16_t wrongCredentials = 2;
constexpr std::uint16_t wrongVersion = 3;
} // namespace loginStatus

} // namespace protocol
