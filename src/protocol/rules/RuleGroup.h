#pragma once

#include "protocol/WireOrder.h"
#include "protocol/rules/RuleWriteAction.h"

namespace protocol {

// A named container of rule entries, which is applied as a whole where an entry refers to it.
struct RuleGroupRecord {
    std::string id; // uuid text, made by the console
    wire::WideString name;
    wire::WideString comment;
    wire::WideString extra1; // the extra texts belong to the server; a console sends them back unchanged
    wire::WideString extra2;

    static constexpr auto fields =
        wireOrder(field("id", &RuleGroupRecord::id), field("name", &RuleGroupRecord::name),
                  field("comment", &RuleGroupRecord::comment), field("extra1", &RuleGroupRecord::extra1),
                  field("extra2", &RuleGroupRecord::extra2));

    bool operator==(const RuleGroupRecord&) const = default;
};

// Asks for all rule groups.
struct ListRuleGroupsRequest {
    static constexpr std::uint16_t opcode = 57;

    std::string filter; // empty for all

    static constexpr auto fields = wireOrder(field("filter", &ListRuleGroupsRequest::filter));

    bool operator==(const ListRuleGroupsRequest&) const = default;
};

// Adds or changes a rule group.
struct WriteRuleGroupRequest {
    static constexpr std::uint16_t opcode = 58;
    static constexpr std::string_view form = "action 1 adds, 2 updates";
    static constexpr std::array<std::uint8_t, 2> actions = {ruleWriteAction::add, ruleWriteAction::update};

    std::uint8_t action = ruleWriteAction::add;
    RuleGroupRecord group;

    static constexpr auto fields =
        wireOrder(field("action", &WriteRuleGroupRequest::action), field("group", &WriteRuleGroupRequest::group));

    bool operator==(const WriteRuleGroupRequest&) const = default;
};

// Deletes a rule group with its entries.
struct DeleteRuleGroupRequest {
    static constexpr std::uint16_t opcode = 58;
    static constexpr std::string_view form = "action 3 deletes";
    static constexpr std::array<std::uint8_t, 1> actions = {ruleWriteAction::remove};

    std::uint8_t action = ruleWriteAction::remove;
    std::string id;

    static constexpr auto fields =
        wireOrder(field("action", &DeleteRuleGroupRequest::action), field("id", &DeleteRuleGroupRequest::id));

    bool operator==(const DeleteRuleGroupRequest&) const = default;
};

} // namespace protocol
