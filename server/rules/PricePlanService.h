#pragma once

#include "protocol/estate/StatusReply.h"
#include "protocol/rules/PricePlan.h"
#include "server/store/StoreConnection.h"

namespace server {

// What may be done to price plans, and doing it. Each change runs inside of the caller's transaction;
// a refused one has changed nothing. Throws StoreError.
class PricePlanService {
public:
    explicit PricePlanService(StoreConnection& connection) : connection_(connection) {}

    // The entries take the place of all that the plan had.
    protocol::StatusReply write(const protocol::WritePricePlanRequest& request);
    // Its prices go with it; the entries that point at it stay as they are.
    protocol::StatusReply remove(const protocol::DeletePricePlanRequest& request);

private:
    StoreConnection& connection_;
};

} // namespace server
