#pragma once

#include "protocol/estate/StatusReply.h"
#include "protocol/rules/PageLimit.h"
#include "server/store/StoreConnection.h"

namespace server {

// What may be done to page limits, and doing it. Each change runs inside of the caller's transaction;
// a refused one has changed nothing. Throws StoreError.
class PageLimitService {
public:
    explicit PageLimitService(StoreConnection& connection) : connection_(connection) {}

    protocol::StatusReply write(const protocol::WritePageLimitRequest& request);
    // The entries that point at it stay as they are.
    protocol::StatusReply remove(const protocol::DeletePageLimitRequest& request);

private:
    StoreConnection& connection_;
};

} // namespace server
