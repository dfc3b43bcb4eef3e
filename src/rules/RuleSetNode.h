#pragma once

#include "console/RecordList.h"
#include "rules/RuleGroupNode.h"

namespace rules {

// The rule groups known to the server, one row each: the rule set.
class RuleSetNode final : public console::RecordList<RuleSetNode, RuleGroupNode> {
public:
    static constexpr console::NodeIdentity identity{.displayName = u"Rule Groups", .image = 20};
    static constexpr std::array titles{console::Column{u"Rule Group Name", 2},
                                       console::Column{u"Rule Group Comment", 3}};
    static constexpr console::MenuEntry newEntry{u"New Rule Group...", u"To create a new rule group", 374};

    using RecordList::RecordList;

protected:
    bool listRecords(client::CQVXAdminClass& client, std::vector<Record>& records) override {
        client.listRuleGroups(records);
        return true; // what came of a list that broke off is shown
    }
};

} // namespace rules
