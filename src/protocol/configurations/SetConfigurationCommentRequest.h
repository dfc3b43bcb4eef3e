#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Gives a configuration another comment.
struct SetConfigurationCommentRequest {
    static constexpr std::uint16_t opcode = 51;

    std::string configId;
    wire::WideString comment;

    static constexpr auto fields = wireOrder(field("configId", &SetConfigurationCommentRequest::configId),
                                             field("comment", &SetConfigurationCommentRequest::comment));

    bool operator==(const SetConfigurationCommentRequest&) const = default;
};

} // namespace protocol
