#pragma once

#include "protocol/estate/StatusReply.h"
#include "protocol/rules/PageLimit.h"
#include "server/store/StoreConnection.h"

namespace server {

// Checks and carries out changes of page limits. Each change runs inside the caller's transaction; a refused one has
// changed nothing. Throws StoreError.
class PageLimitService {
public:
    explicit PageLimitService(StoreConnection& connection) : connection_(connection) {}

    protocol::StatusReply write(const protocol::WritePageLimitRequest& request);
    // The entries that refer to it stay as they are.
    protocol::StatusReply remove(const protocol::DeletePageLimitRequest& request);

private:
    StoreConnection& connection_;
};

} // namespace server
