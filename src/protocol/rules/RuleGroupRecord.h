#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// A named container of rule entries, which is applied as a whole where an entry points at it.
struct RuleGroupRecord {
    std::string id; // uuid text, made by the console
    wire::WideString name;
    wire::WideString comment;
    wire::WideString extra1; // the extra texts belong to the server; a console hands them back as they came
    wire::WideString extra2;

    static constexpr auto fields =
        wireOrder(field("id", &RuleGroupRecord::id), field("name", &RuleGroupRecord::name),
                  field("comment", &RuleGroupRecord::comment), field("extra1", &RuleGroupRecord::extra1),
                  field("extra2", &RuleGroupRecord::extra2));

    bool operator==(const RuleGroupRecord&) const = default;
};

} // namespace protocol
