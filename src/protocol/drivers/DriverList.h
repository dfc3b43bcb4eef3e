#pragma once

#include <cstdint>

namespace protocol::driverList {

// Whose drivers a list holds, and in which form.
inline constexpr std::uint8_t ofBrand = 1;
inline constexpr std::uint8_t shortOfModel = 2; // in ShortDriverRecords
inline constexpr std::uint8_t ofModel = 3;

} // namespace protocol::driverList
