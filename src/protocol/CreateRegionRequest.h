#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Makes a region below another.
struct CreateRegionRequest {
    static constexpr std::uint16_t opcode = 1;

    std::uint8_t kind = 0; // a RegionKind
    std::int32_t parentId = 0;
    wire::WideString name;

    static constexpr auto fields =
        wireOrder(field("kind", &CreateRegionRequest::kind), field("parentId", &CreateRegionRequest::parentId),
                  field("name", &CreateRegionRequest::name));

    bool operator==(const CreateRegionRequest&) const = default;
};

} // namespace protocol
