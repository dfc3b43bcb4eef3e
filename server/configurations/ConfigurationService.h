#pragma once

#include "protocol/configurations/Configuration.h"
#include "protocol/configurations/QueueConfiguration.h"
#include "protocol/estate/StatusReply.h"
#include "server/configurations/ConfigurationTable.h"
#include "server/configurations/QueueConfigurationTable.h"
#include "server/store/StoreConnection.h"

namespace server {

// Checks and carries out changes of configurations. Each change runs inside the caller's transaction; a refused one has
// changed nothing. Throws StoreError.
class ConfigurationService {
public:
    explicit ConfigurationService(StoreConnection& connection)
        : configurations_(connection.table<ConfigurationTable>()),
          queues_(connection.table<QueueConfigurationTable>()) {}

    protocol::StatusReply setComment(const protocol::SetConfigurationCommentRequest& request);
    protocol::StatusReply remove(const protocol::DeleteConfigurationRequest& request);
    // An empty configuration removes what the queue uses.
    protocol::StatusReply applyToQueue(const protocol::ApplyQueueConfigurationRequest& request);
    protocol::StatusReply removeFromQueue(const protocol::RemoveConfigurationFromQueueRequest& request);
    protocol::StatusReply applyForDriver(const protocol::ApplyConfigurationForDriverRequest& request);

private:
    ConfigurationTable& configurations_;
    QueueConfigurationTable& queues_;
};

} // namespace server
