#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Asks for all brands; it has no fields.
struct ListDriverBrandsRequest {
    static constexpr std::uint16_t opcode = 4;

    static constexpr auto fields = wireOrder();

    bool operator==(const ListDriverBrandsRequest&) const = default;
};

} // namespace protocol
