#pragma once

#include "protocol/drivers/Driver.h"
#include "protocol/drivers/DriverModel.h"
#include "protocol/estate/StatusReply.h"
#include "server/drivers/DriverModelTable.h"
#include "server/drivers/DriverTable.h"
#include "server/store/StoreConnection.h"

namespace server {

// What may be done to models and their drivers, and doing it. Each change runs inside of the caller's transaction; a
// refused one has changed nothing. Throws StoreError.
class DriverService {
public:
    explicit DriverService(StoreConnection& connection)
        : models_(connection.table<DriverModelTable>()), drivers_(connection.table<DriverTable>()) {}

    // The new model is visible.
    protocol::StatusReply addModel(const protocol::AddDriverModelRequest& request);
    protocol::StatusReply setVisible(const protocol::SetDriverModelVisibleRequest& request);
    protocol::StatusReply setOctetOrder(const protocol::SetModelOctetOrderRequest& request);

    // What is deployed of the alternate's drivers stays deployed when the link ends.
    protocol::StatusReply addAlternate(const protocol::AddAlternateDriverRequest& request);
    protocol::StatusReply removeAlternate(const protocol::RemoveAlternateDriverRequest& request);

    // A model has it once.
    protocol::StatusReply addBuiltIn(const protocol::AddBuiltInDriverRequest& request);

    // Not while a deployment uses it; deployments that are not in use go with it.
    protocol::StatusReply remove(const protocol::DeleteDriverRequest& request);

private:
    DriverModelTable& models_;
    DriverTable& drivers_;
};

} // namespace server
