#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Gives a queue a configuration with a driver map, or takes it away.
struct ApplyQueueConfigurationRequest {
    static constexpr std::uint16_t opcode = 19;

    std::string queueId;
    std::string driverMapId;
    std::string configId; // empty takes it away

    static constexpr auto fields = wireOrder(field("queueId", &ApplyQueueConfigurationRequest::queueId),
                                             field("driverMapId", &ApplyQueueConfigurationRequest::driverMapId),
                                             field("configId", &ApplyQueueConfigurationRequest::configId));

    bool operator==(const ApplyQueueConfigurationRequest&) const = default;
};

} // namespace protocol
