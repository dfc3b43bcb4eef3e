#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Removes a deployment: the command that changes one, with ten zero bytes behind the id. They have to be exactly these,
// as nothing else tells the two apart.
struct RemoveDriverDeploymentRequest {
    static constexpr std::uint16_t opcode = 16;
    static constexpr std::string_view form = "ten zero bytes behind the id remove";

    std::string deploymentId;
    std::uint32_t zero1 = 0;
    std::uint32_t zero2 = 0;
    std::uint8_t zero3 = 0;
    std::uint8_t zero4 = 0;

    static constexpr auto fields = wireOrder(
        field("deploymentId", &RemoveDriverDeploymentRequest::deploymentId),
        field("zero1", &RemoveDriverDeploymentRequest::zero1), field("zero2", &RemoveDriverDeploymentRequest::zero2),
        field("zero3", &RemoveDriverDeploymentRequest::zero3), field("zero4", &RemoveDriverDeploymentRequest::zero4));

    bool operator==(const RemoveDriverDeploymentRequest&) const = default;
};

} // namespace protocol
