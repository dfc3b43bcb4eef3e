#pragma once

#include "server/store/ListQuery.h"

#include <cstdint>
#include <optional>
#include <string>

namespace server {

// Which configuration a queue uses with which deployment, accessed over one connection to the database without any
// checks. A queue here is anything that prints with a driver: a queue of a printer, a follow-print queue, a local
// printer. Throws StoreError.
class QueueConfigurationTable {
public:
    explicit QueueConfigurationTable(sqlite3* connection);

    // Moves what every queue uses with a deployment to another deployment of the same model, or removes it. The other
    // one may be created later in the same transaction.
    void moveAll(const std::string& fromDeploymentId, const std::string& toDeploymentId);
    void removeAll(const std::string& deploymentId);

    // How many queues use a configuration with the deployment, and how many queues have the model.
    [[nodiscard]] std::uint32_t queuesWithConfiguration(const std::string& deploymentId);
    [[nodiscard]] std::uint32_t queuesOfModel(const std::string& modelId);

    // The model whose drivers a queue uses: that of its printer if it has one, or else its own. None if the queue does
    // not exist.
    [[nodiscard]] std::optional<std::string> modelOf(const std::string& queueId);

    // Makes the queue use the configuration with the deployment, or none.
    void put(const std::string& queueId, const std::string& deploymentId, const std::string& configurationId);
    void remove(const std::string& queueId, const std::string& deploymentId);

    // Like put, for all queues of a model with all deployments of a driver for that model; false without a deployment.
    bool putForDriver(const std::string& modelId, const std::string& driverId, const std::string& configurationId);

    // False when the queue does not use the configuration.
    bool removeFromQueue(const std::string& queueId, const std::string& configurationId);

    // Rows of QueueConfigEntry: one for each deployment of the queue's model, or only for the given one unless it is
    // empty.
    [[nodiscard]] Listing list(const std::string& queueId, const std::string& deploymentId);

    // Rows of ConfigQueueRecord: the queues that use a configuration, by name.
    [[nodiscard]] Listing listQueues(const std::string& configurationId);

private:
    Query moveAll_;
    Query removeAll_;
    Query countUsing_;
    Query countOfModel_;
    Query modelOf_;
    Query put_;
    Query remove_;
    Query putForDriver_;
    Query isDeployed_;
    Query removeFromQueue_;
    ListQuery list_;
    ListQuery listQueues_;
};

} // namespace server
