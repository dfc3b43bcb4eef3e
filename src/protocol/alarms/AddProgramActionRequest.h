#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Binds an event to an action and its destination in a program.
struct AddProgramActionRequest {
    static constexpr std::uint16_t opcode = 33;

    std::string programId;
    std::string eventId;
    std::uint16_t actionCode = 0;
    std::string destinationId;

    static constexpr auto fields = wireOrder(field("programId", &AddProgramActionRequest::programId),
                                             field("eventId", &AddProgramActionRequest::eventId),
                                             field("actionCode", &AddProgramActionRequest::actionCode),
                                             field("destinationId", &AddProgramActionRequest::destinationId));

    bool operator==(const AddProgramActionRequest&) const = default;
};

} // namespace protocol
