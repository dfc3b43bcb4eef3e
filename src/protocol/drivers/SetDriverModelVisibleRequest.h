#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Shows or hides a model.
struct SetDriverModelVisibleRequest {
    static constexpr std::uint16_t opcode = 20;

    std::uint8_t visible = 0; // 1 shows, 0 hides
    std::string modelId;

    static constexpr auto fields = wireOrder(field("visible", &SetDriverModelVisibleRequest::visible),
                                             field("modelId", &SetDriverModelVisibleRequest::modelId));

    bool operator==(const SetDriverModelVisibleRequest&) const = default;
};

} // namespace protocol
