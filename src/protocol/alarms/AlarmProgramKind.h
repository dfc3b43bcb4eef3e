#pragma once

#include <cstdint>

namespace protocol::alarmProgramKind {

constexpr std::uint8_t alarm = 0;
constexpr std::uint8_t counter = 2; // what a printer's counters are read by

} // namespace protocol::alarmProgramKind
