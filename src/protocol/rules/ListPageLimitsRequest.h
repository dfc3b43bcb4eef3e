#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Asks for the names of all page limits. It has no fields.
struct ListPageLimitsRequest {
    static constexpr std::uint16_t opcode = 73;

    static constexpr auto fields = wireOrder();

    bool operator==(const ListPageLimitsRequest&) const = default;
};

} // namespace protocol
