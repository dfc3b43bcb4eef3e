#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Asks for all short ids. It has no fields.
struct ListShortIdsRequest {
    static constexpr std::uint16_t opcode = 81;

    static constexpr auto fields = wireOrder();

    bool operator==(const ListShortIdsRequest&) const = default;
};

} // namespace protocol
