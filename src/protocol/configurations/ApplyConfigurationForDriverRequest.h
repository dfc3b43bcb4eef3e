#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Gives all queues of a model a configuration with each deployment of a driver.
struct ApplyConfigurationForDriverRequest {
    static constexpr std::uint16_t opcode = 79;

    std::string configId;
    std::string modelId;
    std::string driverId;

    static constexpr auto fields = wireOrder(field("configId", &ApplyConfigurationForDriverRequest::configId),
                                             field("modelId", &ApplyConfigurationForDriverRequest::modelId),
                                             field("driverId", &ApplyConfigurationForDriverRequest::driverId));

    bool operator==(const ApplyConfigurationForDriverRequest&) const = default;
};

} // namespace protocol
