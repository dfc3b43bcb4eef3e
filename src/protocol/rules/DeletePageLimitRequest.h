#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Deletes a page limit.
struct DeletePageLimitRequest {
    static constexpr std::uint16_t opcode = 66;

    std::string id;

    static constexpr auto fields = wireOrder(field("id", &DeletePageLimitRequest::id));

    bool operator==(const DeletePageLimitRequest&) const = default;
};

} // namespace protocol
