#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Asks for all that an event can lead to; it has no fields.
struct ListAlarmActionsRequest {
    static constexpr std::uint16_t opcode = 30;

    static constexpr auto fields = wireOrder();

    bool operator==(const ListAlarmActionsRequest&) const = default;
};

} // namespace protocol
