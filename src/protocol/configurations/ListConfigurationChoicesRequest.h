#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Asks which configurations a queue may use with a driver map.
struct ListConfigurationChoicesRequest {
    static constexpr std::uint16_t opcode = 18;

    std::string driverMapId;

    static constexpr auto fields = wireOrder(field("driverMapId", &ListConfigurationChoicesRequest::driverMapId));

    bool operator==(const ListConfigurationChoicesRequest&) const = default;
};

} // namespace protocol
