#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Takes a driver out of the catalogue.
struct DeleteDriverRequest {
    static constexpr std::uint16_t opcode = 13;

    std::string driverId;

    static constexpr auto fields = wireOrder(field("driverId", &DeleteDriverRequest::driverId));

    bool operator==(const DeleteDriverRequest&) const = default;
};

} // namespace protocol
