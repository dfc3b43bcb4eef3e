#pragma once

#include "protocol/estate/StatusReply.h"
#include "protocol/inventory/Schema.h"
#include "server/store/StoreConnection.h"

namespace server {

// Checks and carries out changes of migration plans. Runs inside the caller's transaction; a refused change has changed
// nothing. Throws StoreError.
class MigrationPlanService {
public:
    explicit MigrationPlanService(StoreConnection& connection) : connection_(connection) {}

    // A new plan gets a new id; the one in the request is ignored.
    protocol::StatusReply change(const protocol::ChangeSchemaRequest& request);

private:
    StoreConnection& connection_;
};

} // namespace server
