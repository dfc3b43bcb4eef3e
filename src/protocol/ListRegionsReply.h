#pragma once

#include "protocol/RegionRecord.h"
#include "protocol/WireOrder.h"

namespace protocol {

// The regions of a tree as one message.
struct ListRegionsReply {
    std::vector<RegionRecord> regions;

    static constexpr auto fields = wireOrder(field("regions", &ListRegionsReply::regions));

    bool operator==(const ListRegionsReply&) const = default;
};

} // namespace protocol
