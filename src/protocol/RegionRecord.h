#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// A region of printers and queues, or of local printers.
struct RegionRecord {
    wire::WideString name;
    std::int32_t id = 0;
    std::int32_t parentId = 0; // 0 at the top of the tree

    static constexpr auto fields = wireOrder(field("name", &RegionRecord::name), field("id", &RegionRecord::id),
                                             field("parentId", &RegionRecord::parentId));

    bool operator==(const RegionRecord&) const = default;
};

} // namespace protocol
