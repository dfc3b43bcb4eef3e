#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Adds (without an id), changes, or (with an id and neither name nor address) deletes a recipient. It is read in
// another order than it is written in: the name comes before the address here.
struct WriteEmailRecipientRequest {
    static constexpr std::uint16_t opcode = 24;

    std::string id;
    wire::WideString name;
    wire::WideString email;
    std::uint8_t active = 0;

    static constexpr auto fields = wireOrder(
        field("id", &WriteEmailRecipientRequest::id), field("name", &WriteEmailRecipientRequest::name),
        field("email", &WriteEmailRecipientRequest::email), field("active", &WriteEmailRecipientRequest::active));

    bool operator==(const WriteEmailRecipientRequest&) const = default;
};

} // namespace protocol
