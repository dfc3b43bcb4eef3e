#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Asks for a page limit.
struct GetPageLimitRequest {
    static constexpr std::uint16_t opcode = 65;

    std::string id;

    static constexpr auto fields = wireOrder(field("id", &GetPageLimitRequest::id));

    bool operator==(const GetPageLimitRequest&) const = default;
};

} // namespace protocol
