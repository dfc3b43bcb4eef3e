#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// In which order a printer reports its status octets.
struct GetStatusOctetOrderReply {
    std::uint32_t order = 0; // 0 default, 1 normal, 2 swapped, anything else default

    static constexpr auto fields = wireOrder(field("order", &GetStatusOctetOrderReply::order));

    bool operator==(const GetStatusOctetOrderReply&) const = default;
};

} // namespace protocol
