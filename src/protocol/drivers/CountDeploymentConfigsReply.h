#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// How many queues use a model, and how many of them have a configuration for the operating system and the locale.
struct CountDeploymentConfigsReply {
    std::uint32_t queuesWithConfigs = 0;
    std::uint32_t totalQueues = 0;

    static constexpr auto fields =
        wireOrder(field("queuesWithConfigs", &CountDeploymentConfigsReply::queuesWithConfigs),
                  field("totalQueues", &CountDeploymentConfigsReply::totalQueues));

    bool operator==(const CountDeploymentConfigsReply&) const = default;
};

} // namespace protocol
