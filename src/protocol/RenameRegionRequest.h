#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Gives a region another name.
struct RenameRegionRequest {
    static constexpr std::uint16_t opcode = 2;

    std::uint8_t kind = 0; // a RegionKind
    std::int32_t regionId = 0;
    wire::WideString name;

    static constexpr auto fields =
        wireOrder(field("kind", &RenameRegionRequest::kind), field("regionId", &RenameRegionRequest::regionId),
                  field("name", &RenameRegionRequest::name));

    bool operator==(const RenameRegionRequest&) const = default;
};

} // namespace protocol
