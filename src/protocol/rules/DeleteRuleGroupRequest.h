#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Deletes a rule group with its entries.
struct DeleteRuleGroupRequest {
    static constexpr std::uint16_t opcode = 58;
    static constexpr std::string_view form = "action 3 deletes";
    static constexpr std::array<std::uint8_t, 1> actions = {3};

    std::uint8_t action = 3;
    std::string id;

    static constexpr auto fields =
        wireOrder(field("action", &DeleteRuleGroupRequest::action), field("id", &DeleteRuleGroupRequest::id));

    bool operator==(const DeleteRuleGroupRequest&) const = default;
};

} // namespace protocol
