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

// Finds queues by a pattern of their name; an empty one finds all.
struct SearchQueuesRequest {
    static constexpr std::uint16_t opcode = 39;

    wire::WideString pattern;

    static constexpr auto fields = wireOrder(field("pattern", &SearchQueuesRequest::pattern));

    bool operator==(const SearchQueuesRequest&) const = default;
};

} // namespace protocol
