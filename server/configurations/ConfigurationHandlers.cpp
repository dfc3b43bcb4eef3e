#include "server/configurations/ConfigurationHandlers.h"

#include "protocol/configurations/ConfigQueueRecord.h"
#include "protocol/configurations/ListConfigurationChoicesRequest.h"
#include "protocol/configurations/ListConfigurationQueuesRequest.h"
#include "protocol/configurations/ListConfigurationsRequest.h"
#include "protocol/configurations/ListQueueConfigurationsRequest.h"
#include "protocol/configurations/QueueConfigChoice.h"
#include "protocol/configurations/QueueConfigEntry.h"
#include "server/configurations/ConfigurationRules.h"

namespace server {

namespace {

Listing listOfQueue(Estate& estate, const protocol::ListQueueConfigurationsRequest& request) {
    return estate.table<QueueConfigurationTable>().list(request.queueId, request.driverMapId);
}

Listing listChoices(Estate& estate, const protocol::ListConfigurationChoicesRequest& request) {
    return estate.table<ConfigurationTable>().listChoices(request.driverMapId);
}

Listing listOfModel(Estate& estate, const protocol::ListConfigurationsRequest& request) {
    return estate.table<ConfigurationTable>().list(request.modelId);
}

Listing listQueues(Estate& estate, const protocol::ListConfigurationQueuesRequest& request) {
    return estate.table<QueueConfigurationTable>().listQueues(request.configId);
}

using Rules = ConfigurationRules;

constexpr Handler handlers[] = {
    lists<protocol::ListQueueConfigurationsRequest, protocol::QueueConfigEntry, listOfQueue>,
    lists<protocol::ListConfigurationChoicesRequest, protocol::QueueConfigChoice, listChoices>,
    lists<protocol::ListConfigurationsRequest, protocol::ConfigurationRecord, listOfModel>,
    lists<protocol::ListConfigurationQueuesRequest, protocol::ConfigQueueRecord, listQueues>,
    changes<Rules, &Rules::applyToQueue, protocol::ApplyQueueConfigurationRequest>,
    changes<Rules, &Rules::setComment, protocol::SetConfigurationCommentRequest>,
    changes<Rules, &Rules::remove, protocol::DeleteConfigurationRequest>,
    changes<Rules, &Rules::removeFromQueue, protocol::RemoveConfigurationFromQueueRequest>,
    changes<Rules, &Rules::applyForDriver, protocol::ApplyConfigurationForDriverRequest>,
};

} // namespace

std::span<const Handler> configurationHandlers() {
    return handlers;
}

} // namespace server
