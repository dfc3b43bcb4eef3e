#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Asks how many queues a replaced deployment would touch.
struct CountDeploymentConfigsRequest {
    static constexpr std::uint16_t opcode = 80;

    std::string modelId;
    std::string osId;
    wire::WideString locale;

    static constexpr auto fields = wireOrder(field("modelId", &CountDeploymentConfigsRequest::modelId),
                                             field("osId", &CountDeploymentConfigsRequest::osId),
                                             field("locale", &CountDeploymentConfigsRequest::locale));

    bool operator==(const CountDeploymentConfigsRequest&) const = default;
};

} // namespace protocol
