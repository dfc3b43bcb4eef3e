#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Lists the IP ranges: all, or one.
struct ListIpRangesRequest {
    static constexpr std::uint16_t opcode = 55;

    std::uint8_t listKind = 0; // one of rangeListKind
    std::string id;            // of the one range

    static constexpr auto fields =
        wireOrder(field("listKind", &ListIpRangesRequest::listKind), field("id", &ListIpRangesRequest::id));

    bool operator==(const ListIpRangesRequest&) const = default;
};

} // namespace protocol
