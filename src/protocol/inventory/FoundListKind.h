#pragma once

#include <cstdint>

// Which printers of a report a list asks for, and in which order.
namespace protocol::foundListKind {

constexpr std::uint16_t byIp = 0;               // printers and queues
constexpr std::uint16_t byModel = 1;            // printers and queues
constexpr std::uint16_t byName = 2;             // printers and queues
constexpr std::uint16_t localByWorkstation = 3; // local printers
constexpr std::uint16_t localByModel = 4;       // local printers

} // namespace protocol::foundListKind
