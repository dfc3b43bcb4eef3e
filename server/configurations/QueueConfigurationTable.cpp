#include "server/configurations/QueueConfigurationTable.h"

namespace server {

namespace {

const std::string ofConfiguration = "configurationNumber = (SELECT number FROM configuration WHERE id = ?1)";
const std::string ofQueue = "queueNumber = (SELECT number FROM record WHERE id = ?1)";
const std::string insertSelected =
    "INSERT INTO queueConfiguration (queueNumber, deploymentId, configurationNumber, queueKey) SELECT ";
const std::string elseReplace = " ON CONFLICT DO UPDATE SET configurationNumber = excluded.configurationNumber";

// Driver, locale and text are cut so that together they fit into a frame: each of them alone may be nearly as long as
// one.
const std::string entries =
    "SELECT ifnull(configuration.id, ''), substr(driver.version, 1, 16000), substr(deployment.locale, 1, 4000), "
    "deployment.id, ifnull(configuration.comment, x''), ifnull(substr(configuration.configText, 1, 16000), x'') "
    "FROM driverDeployment AS deployment CROSS JOIN driver ON driver.id = deployment.driverId "
    "LEFT JOIN queueConfiguration AS used ON used." +
    ofQueue +
    " AND used.deploymentId = deployment.id "
    "LEFT JOIN configuration ON configuration.number = used.configurationNumber "
    "WHERE deployment.modelId = (SELECT modelId FROM queueModel WHERE queueId = ?1) "
    "AND (?2 = '' OR deployment.id = ?2) ORDER BY deployment.osNumber, deployment.localeKey";

} // namespace

QueueConfigurationTable::QueueConfigurationTable(sqlite3* connection)
    : moveAll_(connection, "UPDATE OR REPLACE queueConfiguration SET deploymentId = ?2 WHERE deploymentId = ?1"),
      removeAll_(connection, "DELETE FROM queueConfiguration WHERE deploymentId = ?"),
      countUsing_(connection, "SELECT count(*) FROM queueConfiguration WHERE deploymentId = ?"),
      countOfModel_(connection, "SELECT count(*) FROM queueModel WHERE modelId = ?"),
      modelOf_(connection, "SELECT modelId FROM queueModel WHERE queueId = ?"),
      put_(connection, insertSelected +
                           "queue.number, ?2, configuration.number, queue.nameKey "
                           "FROM record AS queue, configuration "
                           "WHERE queue.id = ?1 AND configuration.id = ?3" +
                           elseReplace),
      remove_(connection, "DELETE FROM queueConfiguration WHERE " + ofQueue + " AND deploymentId = ?2"),
      putForDriver_(connection, insertSelected +
                                    "queue.queueNumber, deployment.id, configuration.number, queue.nameKey "
                                    "FROM queueModel AS queue, driverDeployment AS deployment, configuration "
                                    "WHERE queue.modelId = ?1 AND deployment.modelId = ?1 "
                                    "AND deployment.driverId = ?2 AND configuration.id = ?3" +
                                    elseReplace),
      isDeployed_(connection, "SELECT 1 FROM driverDeployment WHERE modelId = ? AND driverId = ? LIMIT 1"),
      // The + restricts the search to the few rows of the queue.
      removeFromQueue_(connection, "DELETE FROM queueConfiguration WHERE " + ofQueue +
                                       " AND +configurationNumber = (SELECT number FROM configuration WHERE id = ?2)"),
      list_(connection, entries),
      // A queue that uses the configuration with several deployments is one row.
      listQueues_(connection,
                  "SELECT used.queueNumber, queue.id, queue.name, queue.location "
                  "FROM queueConfiguration AS used CROSS JOIN record AS queue "
                  "ON queue.number = used.queueNumber WHERE used." +
                      ofConfiguration +
                      " GROUP BY used.queueKey, used.queueNumber ORDER BY used.queueKey, used.queueNumber") {}

void QueueConfigurationTable::moveAll(const std::string& fromDeploymentId, const std::string& toDeploymentId) {
    if (fromDeploymentId != toDeploymentId) {
        moveAll_.execute(fromDeploymentId, toDeploymentId);
    }
}

void QueueConfigurationTable::removeAll(const std::string& deploymentId) {
    removeAll_.execute(deploymentId);
}

std::uint32_t QueueConfigurationTable::queuesWithConfiguration(const std::string& deploymentId) {
    auto rows = countUsing_.run(deploymentId);
    return rows.next() ? static_cast<std::uint32_t>(rows.number(0)) : 0;
}

std::uint32_t QueueConfigurationTable::queuesOfModel(const std::string& modelId) {
    auto rows = countOfModel_.run(modelId);
    return rows.next() ? static_cast<std::uint32_t>(rows.number(0)) : 0;
}

std::optional<std::string> QueueConfigurationTable::modelOf(const std::string& queueId) {
    auto rows = modelOf_.run(queueId);
    return rows.next() ? std::optional<std::string>(rows.text(0)) : std::nullopt;
}

void QueueConfigurationTable::put(const std::string& queueId, const std::string& deploymentId,
                                  const std::string& configurationId) {
    put_.execute(queueId, deploymentId, configurationId);
}

void QueueConfigurationTable::remove(const std::string& queueId, const std::string& deploymentId) {
    remove_.execute(queueId, deploymentId);
}

bool QueueConfigurationTable::putForDriver(const std::string& modelId, const std::string& driverId,
                                           const std::string& configurationId) {
    if (!isDeployed_.run(modelId, driverId).next()) {
        return false;
    }
    putForDriver_.execute(modelId, driverId, configurationId);
    return true;
}

bool QueueConfigurationTable::removeFromQueue(const std::string& queueId, const std::string& configurationId) {
    return removeFromQueue_.affects(queueId, configurationId);
}

Listing QueueConfigurationTable::list(const std::string& queueId, const std::string& deploymentId) {
    return list_.run(queueId, deploymentId);
}

Listing QueueConfigurationTable::listQueues(const std::string& configurationId) {
    return listQueues_.run(configurationId);
}

} // namespace server
