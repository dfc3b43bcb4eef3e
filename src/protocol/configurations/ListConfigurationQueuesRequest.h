#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Asks for the queues that use a configuration.
struct ListConfigurationQueuesRequest {
    static constexpr std::uint16_t opcode = 53;

    std::string configId;

    static constexpr auto fields = wireOrder(field("configId", &ListConfigurationQueuesRequest::configId));

    bool operator==(const ListConfigurationQueuesRequest&) const = default;
};

} // namespace protocol
