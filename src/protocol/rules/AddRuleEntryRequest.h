#pragma once

#include "protocol/WireOrder.h"
#include "protocol/rules/RuleEntryRecord.h"

namespace protocol {

// Places a rule entry on a rule group, a printer or a queue by its id, or on a region by its number.
struct AddRuleEntryRequest {
    static constexpr std::uint16_t opcode = 64;
    static constexpr std::string_view form = "action 5 adds a rule entry";
    static constexpr std::array<std::uint8_t, 1> actions = {5};

    std::uint8_t action = 5;
    std::int32_t ownerNumber = 0; // of a region, else 0
    std::string parentId;
    std::string ownerId;
    RuleEntryRecord entry;

    static constexpr auto fields = wireOrder(
        field("action", &AddRuleEntryRequest::action), field("ownerNumber", &AddRuleEntryRequest::ownerNumber),
        field("parentId", &AddRuleEntryRequest::parentId), field("ownerId", &AddRuleEntryRequest::ownerId),
        field("entry", &AddRuleEntryRequest::entry));

    bool operator==(const AddRuleEntryRequest&) const = default;
};

} // namespace protocol
