#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Deploys a driver for a model, an operating system and a locale, in place of what was deployed there.
struct AddDriverDeploymentRequest {
    static constexpr std::uint16_t opcode = 15;

    std::string driverId;
    std::string modelId;
    wire::WideString comment;
    wire::WideString locale;
    std::string osId;
    std::uint8_t use = 1;
    std::uint8_t install = 0;
    std::uint8_t installMethod = 0; // an InstallMethod
    std::uint8_t keepConfig = 0;    // 1: the configurations of queues move to the new deployment, 0: they go

    static constexpr auto fields = wireOrder(
        field("driverId", &AddDriverDeploymentRequest::driverId),
        field("modelId", &AddDriverDeploymentRequest::modelId), field("comment", &AddDriverDeploymentRequest::comment),
        field("locale", &AddDriverDeploymentRequest::locale), field("osId", &AddDriverDeploymentRequest::osId),
        field("use", &AddDriverDeploymentRequest::use), field("install", &AddDriverDeploymentRequest::install),
        field("installMethod", &AddDriverDeploymentRequest::installMethod),
        field("keepConfig", &AddDriverDeploymentRequest::keepConfig));

    bool operator==(const AddDriverDeploymentRequest&) const = default;
};

} // namespace protocol
