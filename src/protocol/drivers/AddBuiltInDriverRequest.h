#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Gives a model the driver that comes with the operating system.
struct AddBuiltInDriverRequest {
    static constexpr std::uint16_t opcode = 47;

    std::string modelId;

    static constexpr auto fields = wireOrder(field("modelId", &AddBuiltInDriverRequest::modelId));

    bool operator==(const AddBuiltInDriverRequest&) const = default;
};

} // namespace protocol
