#include "rules/RuleGroupObjects.h"

#include "client/CQVXAdminClass.h"

namespace rules {

void RuleGroupObjects::read() {
    groups_.clear();
    client::CQVXAdminClass client;
    client.listRuleGroups(groups_);
}

} // namespace rules
