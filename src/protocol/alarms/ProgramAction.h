#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// One action of a program, with the server's names. The action comes before the event, although they are displayed the
// other way round.
struct ProgramActionRecord {
    std::string id;
    std::string actionName;
    std::string eventName;
    wire::WideString recipient;

    static constexpr auto fields = wireOrder(
        field("id", &ProgramActionRecord::id), field("actionName", &ProgramActionRecord::actionName),
        field("eventName", &ProgramActionRecord::eventName), field("recipient", &ProgramActionRecord::recipient));

    bool operator==(const ProgramActionRecord&) const = default;
};

// Asks for the actions of a program.
struct ListProgramActionsRequest {
    static constexpr std::uint16_t opcode = 32;

    std::string programId;

    static constexpr auto fields = wireOrder(field("programId", &ListProgramActionsRequest::programId));

    bool operator==(const ListProgramActionsRequest&) const = default;
};

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

// Removes an action from its program.
struct DeleteProgramActionRequest {
    static constexpr std::uint16_t opcode = 34;

    std::string actionId;

    static constexpr auto fields = wireOrder(field("actionId", &DeleteProgramActionRequest::actionId));

    bool operator==(const DeleteProgramActionRequest&) const = default;
};

} // namespace protocol
