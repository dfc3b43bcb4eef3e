#pragma once

#include <cstdint>

namespace protocol {

// What a list of printer records selects, and by which key of the request.
namespace printerListMode {
constexpr std::uint16_t printersInRegion = 0;      // region id
constexpr std::uint16_t queues = 1;                // printer id, or the region id while that is empty
constexpr std::uint16_t followQueuesInRegion = 3;  // region id
constexpr std::uint16_t queueById = 4;             // the printer id holds the queue's id
constexpr std::uint16_t printerById = 5;           // the printer id
constexpr std::uint16_t localPrintersInRegion = 6; // region id
constexpr std::uint16_t otherRowById = 8;          // the printer id holds the id
constexpr std::uint16_t printerToCopyById = 9;     // the printer id
constexpr std::uint16_t queueToCopyById = 10;      // the printer id holds the queue's id
} // namespace printerListMode

} // namespace protocol
