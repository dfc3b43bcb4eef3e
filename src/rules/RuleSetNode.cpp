#include "rules/RuleSetNode.h"

#include "client/CQVXAdminClass.h"
#include "rules/NewRuleGroupDlg.h"

namespace rules {

bool RuleSetNode::listRecords(std::vector<Record>& records) {
    client::CQVXAdminClass client;
    client.listRuleGroups(records);
    return true; // the part of a list that was cut short is shown
}

void RuleSetNode::openEditor() {
    NewRuleGroupDlg dialog(platform());
    runModal(dialog);
}

} // namespace rules
