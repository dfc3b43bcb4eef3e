#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Puts a region, with all that it holds, below another.
struct MoveRegionRequest {
    static constexpr std::uint16_t opcode = 3;

    std::uint8_t kind = 0; // a RegionKind
    std::int32_t regionId = 0;
    std::int32_t parentId = 0; // the new one

    static constexpr auto fields =
        wireOrder(field("kind", &MoveRegionRequest::kind), field("regionId", &MoveRegionRequest::regionId),
                  field("parentId", &MoveRegionRequest::parentId));

    bool operator==(const MoveRegionRequest&) const = default;
};

} // namespace protocol
