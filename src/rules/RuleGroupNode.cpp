#include "rules/RuleGroupNode.h"

#include "client/CQVXAdminClass.h"
#include "rules/NewRuleGroupDlg.h"

namespace rules {

void RuleGroupNode::openEditor() {
    NewRuleGroupDlg dialog(platform(), record());
    runModal(dialog);
}

void RuleGroupNode::deleteRecord() {
    client::CQVXAdminClass client;
    client.deleteRuleGroup(record().id);
}

} // namespace rules
