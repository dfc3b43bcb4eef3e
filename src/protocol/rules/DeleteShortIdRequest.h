#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Deletes a short id.
struct DeleteShortIdRequest {
    static constexpr std::uint16_t opcode = 82;

    wire::Uuid id = {};

    static constexpr auto fields = wireOrder(field("id", &DeleteShortIdRequest::id));

    bool operator==(const DeleteShortIdRequest&) const = default;
};

} // namespace protocol
