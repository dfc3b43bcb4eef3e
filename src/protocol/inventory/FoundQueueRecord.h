#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// A queue that was found by its name.
struct FoundQueueRecord {
    std::string queueId;
    wire::WideString queueName;

    static constexpr auto fields =
        wireOrder(field("queueId", &FoundQueueRecord::queueId), field("queueName", &FoundQueueRecord::queueName));

    bool operator==(const FoundQueueRecord&) const = default;
};

} // namespace protocol
