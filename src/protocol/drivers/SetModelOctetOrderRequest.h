#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Sets the byte order in which a model reports its counters.
struct SetModelOctetOrderRequest {
    static constexpr std::uint16_t opcode = 75;

    std::uint32_t octetOrder = 0; // 0 default, 1 normal, 2 swapped
    std::string modelId;

    static constexpr auto fields = wireOrder(field("octetOrder", &SetModelOctetOrderRequest::octetOrder),
                                             field("modelId", &SetModelOctetOrderRequest::modelId));

    bool operator==(const SetModelOctetOrderRequest&) const = default;
};

} // namespace protocol
