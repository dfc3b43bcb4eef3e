#pragma once

#include "protocol/WireOrder.h"
#include "protocol/rules/RuleWriteAction.h"

#include <array>
#include <cstdint>
#include <string_view>

// The types of rule entries.
namespace protocol::ruleEntryType {

constexpr std::uint8_t ruleGroup = 1;
constexpr std::uint8_t pageLimit = 2;
constexpr std::uint8_t pricePlan = 3;
constexpr std::uint8_t handover = 4;
constexpr std::uint8_t parsePrintJob = 5;
constexpr std::uint8_t snmpQueryPrinter = 6;
constexpr std::uint8_t clientBilling = 7;
constexpr std::uint8_t shortId = 10;

struct Labelled {
    std::uint8_t type;
    std::u16string_view label;
};

// All types, with the text that an administrator sees.
constexpr std::array<Labelled, 8> labels = {{
    {ruleGroup, u"Rule group"},
    {pageLimit, u"Page limit"},
    {pricePlan, u"Price plan"},
    {handover, u"Handover"},
    {parsePrintJob, u"Parse print job"},
    {snmpQueryPrinter, u"SNMP query printer"},
    {clientBilling, u"Client billing"},
    {shortId, u"Short Id"},
}};

} // namespace protocol::ruleEntryType

namespace protocol {

// One rule placed on a rule group, a printer, a queue or a region. The command says where, not the record.
struct RuleEntryRecord {
    std::uint8_t type = 0;     // see ruleEntryType
    std::string id;            // uuid text, made by the console
    wire::WideString typeText; // filled in by the server
    wire::WideString name;
    wire::WideString comment;
    wire::WideString affectedName; // a copy of the name, empty for none
    std::string targetId;          // of a rule group, page limit, price plan or short id; otherwise empty
    std::string parentId;
    std::string affectedId; // empty for none

    static constexpr auto fields =
        wireOrder(field("type", &RuleEntryRecord::type), field("id", &RuleEntryRecord::id),
                  field("typeText", &RuleEntryRecord::typeText), field("name", &RuleEntryRecord::name),
                  field("comment", &RuleEntryRecord::comment), field("affectedName", &RuleEntryRecord::affectedName),
                  field("targetId", &RuleEntryRecord::targetId), field("parentId", &RuleEntryRecord::parentId),
                  field("affectedId", &RuleEntryRecord::affectedId));

    bool operator==(const RuleEntryRecord&) const = default;
};

// Asks for the rule entries of a rule group, a printer or a queue by its id, or with an empty id for those of a region.
struct ListRuleEntriesRequest {
    static constexpr std::uint16_t opcode = 61;

    std::string ownerId;
    std::int32_t ownerNumber = 0; // of a region; 0 has a list of its own

    static constexpr auto fields = wireOrder(field("ownerId", &ListRuleEntriesRequest::ownerId),
                                             field("ownerNumber", &ListRuleEntriesRequest::ownerNumber));

    bool operator==(const ListRuleEntriesRequest&) const = default;
};

// Places a rule entry on a rule group, a printer or a queue by its id, or on a region by its number.
struct AddRuleEntryRequest {
    static constexpr std::uint16_t opcode = 64;
    static constexpr std::string_view form = "action 5 adds a rule entry";
    static constexpr std::array<std::uint8_t, 1> actions = {ruleWriteAction::addEntry};

    std::uint8_t action = ruleWriteAction::addEntry;
    std::int32_t ownerNumber = 0; // of a region, otherwise 0
    std::string parentId;
    std::string ownerId;
    RuleEntryRecord entry;

    static constexpr auto fields = wireOrder(
        field("action", &AddRuleEntryRequest::action), field("ownerNumber", &AddRuleEntryRequest::ownerNumber),
        field("parentId", &AddRuleEntryRequest::parentId), field("ownerId", &AddRuleEntryRequest::ownerId),
        field("entry", &AddRuleEntryRequest::entry));

    bool operator==(const AddRuleEntryRequest&) const = default;
};

// Changes a rule entry in place. Its action does not follow the pattern of the others, which has to stay.
struct UpdateRuleEntryRequest {
    static constexpr std::uint16_t opcode = 64;
    static constexpr std::string_view form = "action 88 updates a rule entry";
    static constexpr std::array<std::uint8_t, 1> actions = {ruleWriteAction::updateEntry};

    std::uint8_t action = ruleWriteAction::updateEntry;
    RuleEntryRecord entry;

    static constexpr auto fields =
        wireOrder(field("action", &UpdateRuleEntryRequest::action), field("entry", &UpdateRuleEntryRequest::entry));

    bool operator==(const UpdateRuleEntryRequest&) const = default;
};

// Removes a rule entry.
struct RemoveRuleEntryRequest {
    static constexpr std::uint16_t opcode = 62;
    static constexpr std::string_view form = "action 3 removes";
    static constexpr std::array<std::uint8_t, 1> actions = {ruleWriteAction::remove};

    std::uint8_t action = ruleWriteAction::remove; // no other one exists
    std::string id;
    std::uint16_t type = 0; // that of the entry

    static constexpr auto fields =
        wireOrder(field("action", &RemoveRuleEntryRequest::action), field("id", &RemoveRuleEntryRequest::id),
                  field("type", &RemoveRuleEntryRequest::type));

    bool operator==(const RemoveRuleEntryRequest&) const = default;
};

} // namespace protocol
