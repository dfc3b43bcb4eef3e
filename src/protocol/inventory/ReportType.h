#pragma once

#include <cstdint>

// What an inventory report collects.
namespace protocol::reportType {

constexpr std::uint16_t all = 0;
constexpr std::uint16_t onlyMapped = 1; // to a printer of the system
constexpr std::uint16_t onlyLocal = 2;
constexpr std::uint16_t onlyShared = 3;

} // namespace protocol::reportType
