#pragma once

#include "protocol/StatusReply.h"
#include "protocol/inventory/ChangeIpRangeRequest.h"
#include "server/Estate.h"

namespace server {

// What may be done to IP ranges, and doing it. Runs inside of the caller's transaction; a refused change has changed
// nothing. Throws StoreError.
class IpRangeRules {
public:
    explicit IpRangeRules(Estate& estate) : estate_(estate) {}

    // A new range gets an id of its own; the one in the request is not looked at.
    protocol::StatusReply change(const protocol::ChangeIpRangeRequest& request);

private:
    Estate& estate_;
};

} // namespace server
