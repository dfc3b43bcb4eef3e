#pragma once

#include <cstdint>

// The first byte of requests that share an opcode. That of a changed entry does not follow the pattern of the others,
// which has to stay.
namespace protocol::ruleWriteAction {

constexpr std::uint8_t add = 1;
constexpr std::uint8_t update = 2;
constexpr std::uint8_t remove = 3;
constexpr std::uint8_t addEntry = 5;
constexpr std::uint8_t updateEntry = 88;

} // namespace protocol::ruleWriteAction
