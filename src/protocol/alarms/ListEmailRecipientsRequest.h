#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Asks for one recipient, or with an empty id for all.
struct ListEmailRecipientsRequest {
    static constexpr std::uint16_t opcode = 23;

    std::string id;

    static constexpr auto fields = wireOrder(field("id", &ListEmailRecipientsRequest::id));

    bool operator==(const ListEmailRecipientsRequest&) const = default;
};

} // namespace protocol
