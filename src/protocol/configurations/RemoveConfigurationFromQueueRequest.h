#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Takes a configuration away from a queue.
struct RemoveConfigurationFromQueueRequest {
    static constexpr std::uint16_t opcode = 54;

    std::string configId;
    std::string queueId;

    static constexpr auto fields = wireOrder(field("configId", &RemoveConfigurationFromQueueRequest::configId),
                                             field("queueId", &RemoveConfigurationFromQueueRequest::queueId));

    bool operator==(const RemoveConfigurationFromQueueRequest&) const = default;
};

} // namespace protocol
