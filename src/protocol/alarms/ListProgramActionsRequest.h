#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Asks for the actions of a program.
struct ListProgramActionsRequest {
    static constexpr std::uint16_t opcode = 32;

    std::string programId;

    static constexpr auto fields = wireOrder(field("programId", &ListProgramActionsRequest::programId));

    bool operator==(const ListProgramActionsRequest&) const = default;
};

} // namespace protocol
