#pragma once

#include "protocol/StatusReply.h"
#include "protocol/rules/DeletePricePlanRequest.h"
#include "protocol/rules/WritePricePlanRequest.h"
#include "server/Estate.h"

namespace server {

// What may be done to price plans, and doing it. Each change runs inside of the caller's transaction;
// a refused one has changed nothing. Throws StoreError.
class PricePlanRules {
public:
    explicit PricePlanRules(Estate& estate) : estate_(estate) {}

    // The entries take the place of all that the plan had.
    protocol::StatusReply write(const protocol::WritePricePlanRequest& request);
    // Its prices go with it; the entries that point at it stay as they are.
    protocol::StatusReply remove(const protocol::DeletePricePlanRequest& request);

private:
    Estate& estate_;
};

} // namespace server
