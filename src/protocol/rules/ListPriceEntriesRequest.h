#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Asks for the prices of a plan.
struct ListPriceEntriesRequest {
    static constexpr std::uint16_t opcode = 71;

    std::string planId;

    static constexpr auto fields = wireOrder(field("planId", &ListPriceEntriesRequest::planId));

    bool operator==(const ListPriceEntriesRequest&) const = default;
};

} // namespace protocol
