#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Asks in which order a printer reports its status octets.
struct GetStatusOctetOrderRequest {
    static constexpr std::uint16_t opcode = 76;

    std::string printerId;

    static constexpr auto fields = wireOrder(field("printerId", &GetStatusOctetOrderRequest::printerId));

    bool operator==(const GetStatusOctetOrderRequest&) const = default;
};

} // namespace protocol
