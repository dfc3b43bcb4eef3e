#pragma once

#include "protocol/estate/StatusReply.h"
#include "protocol/rules/Affected.h"
#include "server/store/StoreConnection.h"

namespace server {

// What may be done to affected users and groups, and doing it. Each change runs inside of the caller's transaction;
// a refused one has changed nothing. Throws StoreError.
class AffectedService {
public:
    explicit AffectedService(StoreConnection& connection) : connection_(connection) {}

    protocol::StatusReply write(const protocol::WriteAffectedRequest& request);
    // The entries that point at it stay as they are.
    protocol::StatusReply remove(const protocol::DeleteAffectedRequest& request);

private:
    StoreConnection& connection_;
};

} // namespace server
