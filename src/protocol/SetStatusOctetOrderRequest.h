#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Tells in which order a printer reports its status octets.
struct SetStatusOctetOrderRequest {
    static constexpr std::uint16_t opcode = 74;

    std::uint32_t order = 0; // 0 default, 1 normal, 2 swapped
    std::string printerId;

    static constexpr auto fields = wireOrder(field("order", &SetStatusOctetOrderRequest::order),
                                             field("printerId", &SetStatusOctetOrderRequest::printerId));

    bool operator==(const SetStatusOctetOrderRequest&) const = default;
};

} // namespace protocol
