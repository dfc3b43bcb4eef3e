#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// The byte order in which a model reports its counters.
struct GetModelOctetOrderReply {
    std::uint32_t octetOrder = 0; // 0 default, 1 normal, 2 swapped

    static constexpr auto fields = wireOrder(field("octetOrder", &GetModelOctetOrderReply::octetOrder));

    bool operator==(const GetModelOctetOrderReply&) const = default;
};

} // namespace protocol
