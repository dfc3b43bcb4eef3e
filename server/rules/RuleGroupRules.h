#pragma once

#include "protocol/StatusReply.h"
#include "protocol/rules/DeleteRuleGroupRequest.h"
#include "protocol/rules/WriteRuleGroupRequest.h"
#include "server/Estate.h"

namespace server {

// What may be done to rule groups, and doing it. Each change runs inside of the caller's transaction;
// a refused one has changed nothing. Throws StoreError.
class RuleGroupRules {
public:
    explicit RuleGroupRules(Estate& estate) : estate_(estate) {}

    // The name may be empty: a console makes a group before its administrator has typed anything.
    protocol::StatusReply write(const protocol::WriteRuleGroupRequest& request);
    // The entries of the group go with it; those elsewhere that apply it stay.
    protocol::StatusReply remove(const protocol::DeleteRuleGroupRequest& request);

private:
    Estate& estate_;
};

} // namespace server
