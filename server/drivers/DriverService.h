#pragma once

#include "protocol/drivers/Driver.h"
#include "protocol/drivers/DriverModel.h"
#include "protocol/estate/StatusReply.h"
#include "server/drivers/DriverModelTable.h"
#include "server/drivers/DriverTable.h"
#include "server/store/StoreConnection.h"

namespace server {

// Checks and carries out changes of models and their drivers. Each change runs inside the caller's transaction; a
// refused one has changed nothing. Throws StoreError.
class DriverService {
public:
    explicit DriverService(StoreConnection& connection)
        : models_(connection.table<DriverModelTable>()), drivers_(connection.table<DriverTable>()) {}

    // The new model is visible.
    protocol::StatusReply addModel(const protocol::AddDriverModelRequest& request);
    protocol::StatusReply setVisible(const protocol::SetDriverModelVisibleRequest& request);
    protocol::StatusReply setOctetOrder(const protocol::SetModelOctetOrderRequest& request);

    // The deployed drivers of the alternate stay deployed when the link is removed.
    protocol::StatusReply addAlternate(const protocol::AddAlternateDriverRequest& request);
    protocol::StatusReply removeAlternate(const protocol::RemoveAlternateDriverRequest& request);

    // A model can have each built-in driver only once.
    protocol::StatusReply addBuiltIn(const protocol::AddBuiltInDriverRequest& request);

    // Refused while a deployment uses it; deployments that are not in use are removed with it.
    protocol::StatusReply remove(const protocol::DeleteDriverRequest& request);

private:
    DriverModelTable& models_;
    DriverTable& drivers_;
};

} // namespace server
