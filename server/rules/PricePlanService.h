#pragma once

#include "protocol/estate/StatusReply.h"
#include "protocol/rules/PricePlan.h"
#include "server/store/StoreConnection.h"

namespace server {

// Checks and carries out changes of price plans. Each change runs inside the caller's transaction; a refused one has
// changed nothing. Throws StoreError.
class PricePlanService {
public:
    explicit PricePlanService(StoreConnection& connection) : connection_(connection) {}

    // The entries replace all that the plan had.
    protocol::StatusReply write(const protocol::WritePricePlanRequest& request);
    // Its prices are deleted with it; the entries that refer to it stay as they are.
    protocol::StatusReply remove(const protocol::DeletePricePlanRequest& request);

private:
    StoreConnection& connection_;
};

} // namespace server
