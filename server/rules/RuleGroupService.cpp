#include "server/rules/RuleGroupService.h"

#include "server/estate/RecordTable.h"
#include "server/rules/NamedTable.h"
#include "server/rules/WriteChecks.h"

namespace server {

namespace {

const wire::WideString groupWord = u"rule group";

} // namespace

protocol::StatusReply RuleGroupService::write(const protocol::WriteRuleGroupRequest& request) {
    auto& groups = connection_.table<RuleGroupTable>();
    if (const auto refused = refuseWrite(groups, groupWord, request.action, request.group)) {
        return *refused;
    }
    // Entries are listed only by the id of their owner, so a group must not share its id with a printer or queue.
    if (connection_.table<RecordTable>().find(request.group.id)) {
        return ruleRefused(u"The id of the rule group is that of a printer or a queue.");
    }
    return store(groups, request.action, request.group);
}

protocol::StatusReply RuleGroupService::remove(const protocol::DeleteRuleGroupRequest& request) {
    return removeFrom(connection_.table<RuleGroupTable>(), groupWord, request.id);
}

} // namespace server
