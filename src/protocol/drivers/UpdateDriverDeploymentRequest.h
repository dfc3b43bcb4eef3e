#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Changes whether and how a deployed driver is used and installed.
struct UpdateDriverDeploymentRequest {
    static constexpr std::uint16_t opcode = 16;
    static constexpr std::string_view form = "all but ten zero bytes behind the id changes";

    std::string deploymentId;
    std::uint8_t use = 1;
    std::uint8_t install = 0;
    std::uint8_t installMethod = 0; // an InstallMethod
    std::uint8_t keepConfig = 0;    // 1: an installation that is set leaves the configurations of queues alone

    static constexpr auto fields = wireOrder(field("deploymentId", &UpdateDriverDeploymentRequest::deploymentId),
                                             field("use", &UpdateDriverDeploymentRequest::use),
                                             field("install", &UpdateDriverDeploymentRequest::install),
                                             field("installMethod", &UpdateDriverDeploymentRequest::installMethod),
                                             field("keepConfig", &UpdateDriverDeploymentRequest::keepConfig));

    bool operator==(const UpdateDriverDeploymentRequest&) const = default;
};

} // namespace protocol
