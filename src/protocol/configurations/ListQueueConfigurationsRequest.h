#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Asks what a queue uses with each driver map, or with one.
struct ListQueueConfigurationsRequest {
    static constexpr std::uint16_t opcode = 17;

    std::string queueId;
    std::string driverMapId; // empty for all

    static constexpr auto fields = wireOrder(field("queueId", &ListQueueConfigurationsRequest::queueId),
                                             field("driverMapId", &ListQueueConfigurationsRequest::driverMapId));

    bool operator==(const ListQueueConfigurationsRequest&) const = default;
};

} // namespace protocol
