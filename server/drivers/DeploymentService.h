#pragma once

#include "protocol/drivers/DriverDeployment.h"
#include "protocol/estate/StatusReply.h"
#include "server/configurations/QueueConfigurationTable.h"
#include "server/drivers/DeploymentTable.h"
#include "server/drivers/DriverModelTable.h"
#include "server/drivers/DriverTable.h"
#include "server/store/StoreConnection.h"

namespace server {

// What may be done to deployments, and doing it. Each change runs inside of the caller's transaction; a refused one has
// changed nothing. Throws StoreError.
class DeploymentService {
public:
    explicit DeploymentService(StoreConnection& connection)
        : models_(connection.table<DriverModelTable>()),
          drivers_(connection.table<DriverTable>()),
          deployments_(connection.table<DeploymentTable>()),
          configurations_(connection.table<QueueConfigurationTable>()) {}

    // Takes the place of what is deployed for the same model, operating system and locale. The configurations that
    // queues use with that go over to the new deployment when they are to be kept, else they go.
    protocol::StatusReply add(const protocol::AddDriverDeploymentRequest& request);

    // Installing what was not installed is a replacement too: what queues use with the deployment goes unless it is to
    // be kept. No other change touches it.
    protocol::StatusReply update(const protocol::UpdateDriverDeploymentRequest& request);

    // What queues use with it goes with it.
    protocol::StatusReply remove(const protocol::RemoveDriverDeploymentRequest& request);

private:
    [[nodiscard]] std::optional<protocol::StatusReply> refuse(const StoredDeployment& deployment);

    DriverModelTable& models_;
    DriverTable& drivers_;
    DeploymentTable& deployments_;
    QueueConfigurationTable& configurations_;
};

} // namespace server
