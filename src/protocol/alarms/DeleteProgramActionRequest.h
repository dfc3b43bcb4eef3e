#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Takes an action out of its program.
struct DeleteProgramActionRequest {
    static constexpr std::uint16_t opcode = 34;

    std::string actionId;

    static constexpr auto fields = wireOrder(field("actionId", &DeleteProgramActionRequest::actionId));

    bool operator==(const DeleteProgramActionRequest&) const = default;
};

} // namespace protocol
