#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Asks for the deployments of a model.
struct ListDriverDeploymentsRequest {
    static constexpr std::uint16_t opcode = 14;

    std::string modelId;
    std::string driverId; // empty: with any driver

    static constexpr auto fields = wireOrder(field("modelId", &ListDriverDeploymentsRequest::modelId),
                                             field("driverId", &ListDriverDeploymentsRequest::driverId));

    bool operator==(const ListDriverDeploymentsRequest&) const = default;
};

} // namespace protocol
