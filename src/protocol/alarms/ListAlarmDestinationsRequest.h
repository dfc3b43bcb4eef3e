#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Asks where an action can go to.
struct ListAlarmDestinationsRequest {
    static constexpr std::uint16_t opcode = 31;

    std::uint16_t actionCode = 0;

    static constexpr auto fields = wireOrder(field("actionCode", &ListAlarmDestinationsRequest::actionCode));

    bool operator==(const ListAlarmDestinationsRequest&) const = default;
};

} // namespace protocol
