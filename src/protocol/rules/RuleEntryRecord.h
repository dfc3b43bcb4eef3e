#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// One rule placed on a rule group, a printer, a queue or a region. Where it is placed stands in the command, not in
// here.
struct RuleEntryRecord {
    std::uint8_t type = 0;     // see ruleEntryType
    std::string id;            // uuid text, made by the console
    wire::WideString typeText; // filled in by the server
    wire::WideString name;
    wire::WideString comment;
    wire::WideString affectedName; // a copy of the name, empty for none
    std::string targetId;          // of a rule group, page limit, price plan or short id; else empty
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

} // namespace protocol
