#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Asks for the rule entries of a rule group, a printer or a queue by its id, or with an empty id for those of a region.
struct ListRuleEntriesRequest {
    static constexpr std::uint16_t opcode = 61;

    std::string ownerId;
    std::int32_t ownerNumber = 0; // of a region; 0 is a list of its own

    static constexpr auto fields = wireOrder(field("ownerId", &ListRuleEntriesRequest::ownerId),
                                             field("ownerNumber", &ListRuleEntriesRequest::ownerNumber));

    bool operator==(const ListRuleEntriesRequest&) const = default;
};

} // namespace protocol
