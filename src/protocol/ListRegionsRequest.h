#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Asks for the regions of a tree.
struct ListRegionsRequest {
    static constexpr std::uint16_t opcode = 0;

    std::uint8_t kind = 0;     // a RegionKind
    std::int32_t parentId = 0; // 0 for the whole tree
    std::uint16_t reserved = 0;

    static constexpr auto fields =
        wireOrder(field("kind", &ListRegionsRequest::kind), field("parentId", &ListRegionsRequest::parentId),
                  field("reserved", &ListRegionsRequest::reserved));

    bool operator==(const ListRegionsRequest&) const = default;
};

} // namespace protocol
