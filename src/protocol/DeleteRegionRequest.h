#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Deletes a region.
struct DeleteRegionRequest {
    static constexpr std::uint16_t opcode = 45;

    std::int32_t regionId = 0;
    std::uint8_t kind = 0; // a RegionKind

    static constexpr auto fields =
        wireOrder(field("regionId", &DeleteRegionRequest::regionId), field("kind", &DeleteRegionRequest::kind));

    bool operator==(const DeleteRegionRequest&) const = default;
};

} // namespace protocol
