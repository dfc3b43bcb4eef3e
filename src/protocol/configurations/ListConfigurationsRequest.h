#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Asks for the configurations of a printer model.
struct ListConfigurationsRequest {
    static constexpr std::uint16_t opcode = 50;

    std::string modelId;

    static constexpr auto fields = wireOrder(field("modelId", &ListConfigurationsRequest::modelId));

    bool operator==(const ListConfigurationsRequest&) const = default;
};

} // namespace protocol
