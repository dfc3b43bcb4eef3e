#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Asks for the byte order in which a model reports its counters.
struct GetModelOctetOrderRequest {
    static constexpr std::uint16_t opcode = 77;

    std::string modelId;

    static constexpr auto fields = wireOrder(field("modelId", &GetModelOctetOrderRequest::modelId));

    bool operator==(const GetModelOctetOrderRequest&) const = default;
};

} // namespace protocol
