#pragma once

#include "protocol/estate/StatusReply.h"
#include "protocol/rules/RuleGroup.h"
#include "server/store/StoreConnection.h"

namespace server {

// Checks and carries out changes of rule groups. Each change runs inside the caller's transaction; a refused one has
// changed nothing. Throws StoreError.
class RuleGroupService {
public:
    explicit RuleGroupService(StoreConnection& connection) : connection_(connection) {}

    // The name may be empty: a console creates a group before the administrator has typed anything.
    protocol::StatusReply write(const protocol::WriteRuleGroupRequest& request);
    // The entries of the group are deleted with it; entries elsewhere that apply it stay.
    protocol::StatusReply remove(const protocol::DeleteRuleGroupRequest& request);

private:
    StoreConnection& connection_;
};

} // namespace server
