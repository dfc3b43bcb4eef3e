#pragma once

#include <cstdint>

namespace protocol::driverModelList {

// What a list of models is for, which decides what stands in it.
inline constexpr std::uint8_t ofBrand = 0;       // for the tree: the hidden ones too
inline constexpr std::uint8_t forDialogs = 1;    // of a brand, to choose the model of a printer or a queue from
inline constexpr std::uint8_t alternates = 2;    // of a model
inline constexpr std::uint8_t forAlternates = 3; // of a brand, to choose an alternate from

} // namespace protocol::driverModelList
