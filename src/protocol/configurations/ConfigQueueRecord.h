#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// A queue that uses a configuration.
struct ConfigQueueRecord {
    std::uint32_t queueNumber = 0; // the same for as long as the queue exists
    std::string queueId;
    wire::WideString queueName;
    wire::WideString queueLocation;

    static constexpr auto fields = wireOrder(
        field("queueNumber", &ConfigQueueRecord::queueNumber), field("queueId", &ConfigQueueRecord::queueId),
        field("queueName", &ConfigQueueRecord::queueName), field("queueLocation", &ConfigQueueRecord::queueLocation));

    bool operator==(const ConfigQueueRecord&) const = default;
};

} // namespace protocol
