#include "rules/RuleSetNode.h"

#include "client/CQVXAdminClass.h"
#include "rules/NewRuleGroupDlg.h"

namespace rules {

bool RuleSetNode::listRecords(std::vector<Record>& records) {
    client::CQVXAdminClass client;
    return client.listRuleGroups(records);
}

void RuleSetNode::openEditor() {
    NewRuleGroupDlg dialog(platform());
    runModal(dialog);
}

} // namespace rules
