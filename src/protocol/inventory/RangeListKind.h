#pragma once

#include <cstdint>

// Which IP ranges a list asks for.
namespace protocol::rangeListKind {

constexpr std::uint8_t all = 0;
constexpr std::uint8_t one = 2;

} // namespace protocol::rangeListKind
