#include "server/configurations/ConfigurationHandlers.h"

#include "protocol/configurations/Configuration.h"
#include "protocol/configurations/QueueConfiguration.h"
#include "server/configurations/ConfigurationService.h"

namespace server {

namespace {

Listing listOfQueue(StoreConnection& connection, const protocol::ListQueueConfigurationsRequest& request) {
    return connection.table<QueueConfigurationTable>().list(request.queueId, request.driverMapId);
}

Listing listChoices(StoreConnection& connection, const protocol::ListConfigurationChoicesRequest& request) {
    return connection.table<ConfigurationTable>().listChoices(request.driverMapId);
}

Listing listOfModel(StoreConnection& connection, const protocol::ListConfigurationsRequest& request) {
    return connection.table<ConfigurationTable>().list(request.modelId);
}

Listing listQueues(StoreConnection& connection, const protocol::ListConfigurationQueuesRequest& request) {
    return connection.table<QueueConfigurationTable>().listQueues(request.configId);
}

using Service = ConfigurationService;

constexpr Handler handlers[] = {
    lists<protocol::ListQueueConfigurationsRequest, protocol::QueueConfigEntry, listOfQueue>,
    lists<protocol::ListConfigurationChoicesRequest, protocol::QueueConfigChoice, listChoices>,
    lists<protocol::ListConfigurationsRequest, protocol::ConfigurationRecord, listOfModel>,
    lists<protocol::ListConfigurationQueuesRequest, protocol::ConfigQueueRecord, listQueues>,
    changes<Service, &Service::applyToQueue, protocol::ApplyQueueConfigurationRequest>,
    changes<Service, &Service::setComment, protocol::SetConfigurationCommentRequest>,
    changes<Service, &Service::remove, protocol::DeleteConfigurationRequest>,
    changes<Service, &Service::removeFromQueue, protocol::RemoveConfigurationFromQueueRequest>,
    changes<Service, &Service::applyForDriver, protocol::ApplyConfigurationForDriverRequest>,
};

} // namespace

std::span<const Handler> configurationHandlers() {
    return handlers;
}

} // namespace server
