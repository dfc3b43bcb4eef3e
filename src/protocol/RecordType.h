#pragma once

#include <cstdint>

namespace protocol {

// What kind of row a printer record is. The values from loadQueue on (but for localPrinter) only tell an editing object
// how to load a record.
namespace recordType {
constexpr std::uint16_t printer = 0;
constexpr std::uint16_t queue = 1;
constexpr std::uint16_t followQueue = 3; // stands in a region, has no physical printer
constexpr std::uint16_t loadQueue = 4;   // stored as queue
constexpr std::uint16_t loadPrinter = 5; // stored as printer
constexpr std::uint16_t localPrinter = 6;
constexpr std::uint16_t loadPrinterAsSeven = 7; // loads a printer, kept as 7
constexpr std::uint16_t otherRow = 8;
constexpr std::uint16_t copyOfPrinter = 9; // saved as a new printer
constexpr std::uint16_t copyOfQueue = 10;  // saved as a new queue
} // namespace recordType

} // namespace protocol
