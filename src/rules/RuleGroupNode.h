#pragma once

#include "console/RecordRow.h"
#include "rules/NewRuleGroupDlg.h"

namespace rules {

// A rule group as a row of the list of all.
class RuleGroupNode final : public console::RecordRow<RuleGroupNode, protocol::RuleGroupRecord> {
public:
    using Dialog = NewRuleGroupDlg;
    static constexpr console::NodeIdentity identity{.displayName = u"Rule Group", .image = 19};
    static constexpr std::array cells{console::RecordCell(&protocol::RuleGroupRecord::comment)};
    // The blank at the end of the question must stay.
    static constexpr console::RowCommands rowCommands{.edit{u"Edit rule group", u"To edit rule group", 372},
                                                      .remove{u"Remove rule group", u"To remove rule group", 373},
                                                      .question = u"Do you want to delete the selected rule? "};

    using RecordRow::RecordRow;

protected:
    void deleteRecord(client::CQVXAdminClass& client) override { client.deleteRuleGroup(record().id); }
};

} // namespace rules
