#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Removes a rule entry.
struct RemoveRuleEntryRequest {
    static constexpr std::uint16_t opcode = 62;
    static constexpr std::string_view form = "action 3 removes";
    static constexpr std::array<std::uint8_t, 1> actions = {3};

    std::uint8_t action = 3; // no other one exists
    std::string id;
    std::uint16_t type = 0; // that of the entry

    static constexpr auto fields =
        wireOrder(field("action", &RemoveRuleEntryRequest::action), field("id", &RemoveRuleEntryRequest::id),
                  field("type", &RemoveRuleEntryRequest::type));

    bool operator==(const RemoveRuleEntryRequest&) const = default;
};

} // namespace protocol
