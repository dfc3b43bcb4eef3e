#pragma once

#include "protocol/estate/StatusReply.h"
#include "protocol/rules/Affected.h"
#include "server/store/StoreConnection.h"

namespace server {

// Checks and carries out changes of affected users and groups. Each change runs inside the caller's transaction; a
// refused one has changed nothing. Throws StoreError.
class AffectedService {
public:
    explicit AffectedService(StoreConnection& connection) : connection_(connection) {}

    protocol::StatusReply write(const protocol::WriteAffectedRequest& request);
    // The entries that refer to it stay as they are.
    protocol::StatusReply remove(const protocol::DeleteAffectedRequest& request);

private:
    StoreConnection& connection_;
};

} // namespace server
