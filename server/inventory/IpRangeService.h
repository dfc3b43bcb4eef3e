#pragma once

#include "protocol/estate/StatusReply.h"
#include "protocol/inventory/IpRange.h"
#include "server/store/StoreConnection.h"

namespace server {

// Checks and carries out changes of IP ranges. Runs inside the caller's transaction; a refused change has changed
// nothing. Throws StoreError.
class IpRangeService {
public:
    explicit IpRangeService(StoreConnection& connection) : connection_(connection) {}

    // A new range gets a new id; the one in the request is ignored.
    protocol::StatusReply change(const protocol::ChangeIpRangeRequest& request);

private:
    StoreConnection& connection_;
};

} // namespace server
