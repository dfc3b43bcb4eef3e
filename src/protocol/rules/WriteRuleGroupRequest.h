#pragma once

#include "protocol/WireOrder.h"
#include "protocol/rules/RuleGroupRecord.h"

namespace protocol {

// Adds or changes a rule group.
struct WriteRuleGroupRequest {
    static constexpr std::uint16_t opcode = 58;
    static constexpr std::string_view form = "action 1 adds, 2 updates";
    static constexpr std::array<std::uint8_t, 2> actions = {1, 2};

    std::uint8_t action = 1;
    RuleGroupRecord group;

    static constexpr auto fields =
        wireOrder(field("action", &WriteRuleGroupRequest::action), field("group", &WriteRuleGroupRequest::group));

    bool operator==(const WriteRuleGroupRequest&) const = default;
};

} // namespace protocol
