#pragma once

#include <cstdint>

namespace protocol::installMethod {

// How much a client's user sees of the installation of a driver.
inline constexpr std::uint8_t quiet = 0;
inline constexpr std::uint8_t superQuiet = 1;
inline constexpr std::uint8_t verbose = 2;

} // namespace protocol::installMethod
