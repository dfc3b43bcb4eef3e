#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Puts a printer into another region.
struct MovePrinterRequest {
    static constexpr std::uint16_t opcode = 21;

    std::string printerId;
    std::int32_t regionId = 0;

    static constexpr auto fields =
        wireOrder(field("printerId", &MovePrinterRequest::printerId), field("regionId", &MovePrinterRequest::regionId));

    bool operator==(const MovePrinterRequest&) const = default;
};

} // namespace protocol
