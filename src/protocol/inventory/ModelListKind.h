#pragma once

#include <cstdint>

// Which of the models of a report a list asks for.
namespace protocol::modelListKind {

constexpr std::uint16_t all = 0;
constexpr std::uint16_t working = 1; // with a driver
constexpr std::uint16_t missing = 2; // unknown, or without a driver

} // namespace protocol::modelListKind
