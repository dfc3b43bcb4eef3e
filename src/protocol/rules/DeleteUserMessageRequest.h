#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Deletes a user message.
struct DeleteUserMessageRequest {
    static constexpr std::uint16_t opcode = 68;
    static constexpr std::string_view form = "action 3 deletes";
    static constexpr std::array<std::uint8_t, 1> actions = {3};

    std::uint8_t action = 3;
    wire::Uuid id = {};

    static constexpr auto fields =
        wireOrder(field("action", &DeleteUserMessageRequest::action), field("id", &DeleteUserMessageRequest::id));

    bool operator==(const DeleteUserMessageRequest&) const = default;
};

} // namespace protocol
