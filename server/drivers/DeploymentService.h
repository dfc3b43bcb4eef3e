#pragma once

#include "protocol/drivers/DriverDeployment.h"
#include "protocol/estate/StatusReply.h"
#include "server/configurations/QueueConfigurationTable.h"
#include "server/drivers/DeploymentTable.h"
#include "server/drivers/DriverModelTable.h"
#include "server/drivers/DriverTable.h"
#include "server/store/StoreConnection.h"

namespace server {

// Checks and carries out changes of deployments. Each change runs inside the caller's transaction; a refused one has
// changed nothing. Throws StoreError.
class DeploymentService {
public:
    explicit DeploymentService(StoreConnection& connection)
        : models_(connection.table<DriverModelTable>()),
          drivers_(connection.table<DriverTable>()),
          deployments_(connection.table<DeploymentTable>()),
          configurations_(connection.table<QueueConfigurationTable>()) {}

    // Replaces what is deployed for the same model, operating system and locale. The configurations that queues use
    // with the old deployment move to the new one if they are to be kept; otherwise they are removed.
    protocol::StatusReply add(const protocol::AddDriverDeploymentRequest& request);

    // Installing what was not installed counts as a replacement: what queues use with the deployment is removed unless
    // it is to be kept. No other change affects it.
    protocol::StatusReply update(const protocol::UpdateDriverDeploymentRequest& request);

    // Also removes what queues use with it.
    protocol::StatusReply remove(const protocol::RemoveDriverDeploymentRequest& request);

private:
    [[nodiscard]] std::optional<protocol::StatusReply> refuse(const StoredDeployment& deployment);

    DriverModelTable& models_;
    DriverTable& drivers_;
    DeploymentTable& deployments_;
    QueueConfigurationTable& configurations_;
};

} // namespace server
