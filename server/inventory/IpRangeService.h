#pragma once

#include "protocol/estate/StatusReply.h"
#include "protocol/inventory/IpRange.h"
#include "server/store/StoreConnection.h"

namespace server {

// What may be done to IP ranges, and doing it. Runs inside of the caller's transaction; a refused change has changed
// nothing. Throws StoreError.
class IpRangeService {
public:
    explicit IpRangeService(StoreConnection& connection) : connection_(connection) {}

    // A new range gets an id of its own; the one in the request is not looked at.
    protocol::StatusReply change(const protocol::ChangeIpRangeRequest& request);

private:
    StoreConnection& connection_;
};

} // namespace server
