#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Deletes a configuration.
struct DeleteConfigurationRequest {
    static constexpr std::uint16_t opcode = 52;

    std::uint8_t force = 0; // 1 also while queues use it
    std::string configId;

    static constexpr auto fields = wireOrder(field("force", &DeleteConfigurationRequest::force),
                                             field("configId", &DeleteConfigurationRequest::configId));

    bool operator==(const DeleteConfigurationRequest&) const = default;
};

} // namespace protocol
