#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Asks for all rule groups.
struct ListRuleGroupsRequest {
    static constexpr std::uint16_t opcode = 57;

    std::string filter; // empty for all

    static constexpr auto fields = wireOrder(field("filter", &ListRuleGroupsRequest::filter));

    bool operator==(const ListRuleGroupsRequest&) const = default;
};

} // namespace protocol
