#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Switches a recipient on or off.
struct SetRecipientActiveRequest {
    static constexpr std::uint16_t opcode = 25;

    std::string id;
    std::uint8_t active = 0;

    static constexpr auto fields =
        wireOrder(field("id", &SetRecipientActiveRequest::id), field("active", &SetRecipientActiveRequest::active));

    bool operator==(const SetRecipientActiveRequest&) const = default;
};

} // namespace protocol
