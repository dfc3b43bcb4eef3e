#include "rules/RuleSetNode.h"

#include "client/CQVXAdminClass.h"
#include "rules/NewRuleGroupDlg.h"

namespace rules {

bool RuleSetNode::listRecords(std::vector<Record>& records) {
    client::CQVXAdminClass client;
    client.listRuleGroups(records);
    return true; // what came of a list that broke off is shown
}

void RuleSetNode::openEditor() {
    NewRuleGroupDlg dialog(platform());
    runModal(dialog);
}

} // namespace rules
