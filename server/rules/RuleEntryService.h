#pragma once

#include "protocol/estate/StatusReply.h"
#include "protocol/rules/RuleEntry.h"
#include "server/rules/RuleEntryTable.h"
#include "server/store/StoreConnection.h"

namespace server {

// Checks and carries out changes of rule entries. Each change runs inside the caller's transaction; a refused one has
// changed nothing. Throws StoreError.
class RuleEntryService {
public:
    explicit RuleEntryService(StoreConnection& connection) : connection_(connection) {}

    protocol::StatusReply add(const protocol::AddRuleEntryRequest& request);
    // The entry stays where it is. Its type may change.
    protocol::StatusReply update(const protocol::UpdateRuleEntryRequest& request);
    // By the id alone: another console may have changed the type in the meantime.
    protocol::StatusReply remove(const protocol::RemoveRuleEntryRequest& request);

private:
    // None when there is no such owner.
    [[nodiscard]] std::optional<RuleEntryOwner> findOwner(const std::string& id);
    [[nodiscard]] std::optional<RuleEntryOwner> findOwner(std::int32_t regionId);

    StoreConnection& connection_;
};

} // namespace server
