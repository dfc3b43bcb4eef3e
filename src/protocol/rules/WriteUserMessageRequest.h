#pragma once

#include "protocol/WireOrder.h"
#include "protocol/rules/UserMessageRecord.h"

namespace protocol {

// Adds or changes a user message.
struct WriteUserMessageRequest {
    static constexpr std::uint16_t opcode = 68;
    static constexpr std::string_view form = "action 1 adds, 2 updates";
    static constexpr std::array<std::uint8_t, 2> actions = {1, 2};

    std::uint8_t action = 1;
    UserMessageRecord message;

    static constexpr auto fields = wireOrder(field("action", &WriteUserMessageRequest::action),
                                             field("message", &WriteUserMessageRequest::message));

    bool operator==(const WriteUserMessageRequest&) const = default;
};

} // namespace protocol
