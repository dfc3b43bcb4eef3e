#pragma once

#include "protocol/WireOrder.h"
#include "protocol/inventory/IpRangeRecord.h"

namespace protocol {

// Adds, changes, deletes or switches an IP range.
struct ChangeIpRangeRequest {
    static constexpr std::uint16_t opcode = 56;
    static constexpr std::array<std::uint8_t, 4> actions = {1, 2, 3, 4};

    std::uint8_t operation = 0; // 1 adds, 2 saves an edit, 3 deletes, 4 sets active; 3 and 4 name only the rangeId
    IpRangeRecord range;

    static constexpr auto fields =
        wireOrder(field("operation", &ChangeIpRangeRequest::operation), field("range", &ChangeIpRangeRequest::range));

    bool operator==(const ChangeIpRangeRequest&) const = default;
};

} // namespace protocol
