#pragma once

#include "protocol/StatusReply.h"
#include "protocol/inventory/ChangeSchemaRequest.h"
#include "server/Estate.h"

namespace server {

// What may be done to migration plans, and doing it. Runs inside of the caller's transaction; a refused change has
// changed nothing. Throws StoreError.
class MigrationPlanRules {
public:
    explicit MigrationPlanRules(Estate& estate) : estate_(estate) {}

    // A new plan gets an id of its own; the one in the request is not looked at.
    protocol::StatusReply change(const protocol::ChangeSchemaRequest& request);

private:
    Estate& estate_;
};

} // namespace server
