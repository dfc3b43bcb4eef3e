#pragma once

#include "protocol/estate/StatusReply.h"
#include "protocol/rules/RuleGroup.h"
#include "server/store/StoreConnection.h"

namespace server {

// What may be done to rule groups, and doing it. Each change runs inside of the caller's transaction;
// a refused one has changed nothing. Throws StoreError.
class RuleGroupService {
public:
    explicit RuleGroupService(StoreConnection& connection) : connection_(connection) {}

    // The name may be empty: a console makes a group before its administrator has typed anything.
    protocol::StatusReply write(const protocol::WriteRuleGroupRequest& request);
    // The entries of the group go with it; those elsewhere that apply it stay.
    protocol::StatusReply remove(const protocol::DeleteRuleGroupRequest& request);

private:
    StoreConnection& connection_;
};

} // namespace server
