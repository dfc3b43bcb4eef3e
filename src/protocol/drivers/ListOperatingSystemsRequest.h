#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Asks for all operating systems; it has no fields.
struct ListOperatingSystemsRequest {
    static constexpr std::uint16_t opcode = 11;

    static constexpr auto fields = wireOrder();

    bool operator==(const ListOperatingSystemsRequest&) const = default;
};

} // namespace protocol
