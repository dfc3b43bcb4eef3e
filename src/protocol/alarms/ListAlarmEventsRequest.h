#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Asks for all that a printer can report; it has no fields.
struct ListAlarmEventsRequest {
    static constexpr std::uint16_t opcode = 29;

    static constexpr auto fields = wireOrder();

    bool operator==(const ListAlarmEventsRequest&) const = default;
};

} // namespace protocol
