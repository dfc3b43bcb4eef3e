#pragma once

#include "protocol/estate/StatusReply.h"
#include "protocol/inventory/Schema.h"
#include "server/store/StoreConnection.h"

namespace server {

// What may be done to migration plans, and doing it. Runs inside of the caller's transaction; a refused change has
// changed nothing. Throws StoreError.
class MigrationPlanService {
public:
    explicit MigrationPlanService(StoreConnection& connection) : connection_(connection) {}

    // A new plan gets an id of its own; the one in the request is not looked at.
    protocol::StatusReply change(const protocol::ChangeSchemaRequest& request);

private:
    StoreConnection& connection_;
};

} // namespace server
