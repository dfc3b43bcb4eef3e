#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Asks for all user messages.
struct ListUserMessagesRequest {
    static constexpr std::uint16_t opcode = 67;

    std::uint8_t selection = 1; // no other one exists
    std::string filter;         // empty for all

    static constexpr auto fields = wireOrder(field("selection", &ListUserMessagesRequest::selection),
                                             field("filter", &ListUserMessagesRequest::filter));

    bool operator==(const ListUserMessagesRequest&) const = default;
};

} // namespace protocol
