#pragma once

#include "protocol/WireOrder.h"
#include "protocol/rules/RuleEntryRecord.h"

namespace protocol {

// Changes a rule entry where it stands. Its action is out of line with all others, which has to stay.
struct UpdateRuleEntryRequest {
    static constexpr std::uint16_t opcode = 64;
    static constexpr std::string_view form = "action 88 updates a rule entry";
    static constexpr std::array<std::uint8_t, 1> actions = {88};

    std::uint8_t action = 88;
    RuleEntryRecord entry;

    static constexpr auto fields =
        wireOrder(field("action", &UpdateRuleEntryRequest::action), field("entry", &UpdateRuleEntryRequest::entry));

    bool operator==(const UpdateRuleEntryRequest&) const = default;
};

} // namespace protocol
