#include "client/configurations/ConfigurationCommands.h"

#include "client/CursorCalls.h"
#include "protocol/configurations/Configuration.h"
#include "protocol/configurations/QueueConfiguration.h"
#include "wire/WireDate.h"

namespace client {
bool ConfigurationCommands::getConfigurations(const std::string& queueId, const std::string& driverMapId) {
    return fillCursor(client_, entries_,
                      protocol::ListQueueConfigurationsRequest{.queueId = queueId, .driverMapId = driverMapId},
                      queueId);
}

bool ConfigurationCommands::nextConfiguration(protocol::QueueConfigEntry& entry) {
    return entries_.next(entry);
}

bool ConfigurationCommands::getConfigChoices(const std::string& driverMapId) {
    return fillCursor(client_, choices_, protocol::ListConfigurationChoicesRequest{.driverMapId = driverMapId},
                      driverMapId);
}

bool ConfigurationCommands::nextConfigChoice(protocol::QueueConfigChoice& choice) {
    return choices_.next(choice);
}

bool ConfigurationCommands::applyConfiguration(const std::string& queueId, const std::string& driverMapId,
                                               const std::string& configId) {
    return sendCommand(
        client_,
        protocol::ApplyQueueConfigurationRequest{.queueId = queueId, .driverMapId = driverMapId, .configId = configId},
        queueId);
}

bool ConfigurationCommands::listConfigurations(const std::string& modelId) {
    return fillCompleted<protocol::ConfigurationRecord>(
        client_, records_, protocol::ListConfigurationsRequest{.modelId = modelId}, modelId,
        [](protocol::ConfigurationRecord&& sent) {
            auto text = wire::formatWireDateWide(sent.date);
            return ListedConfiguration{std::move(sent), std::move(text)};
        });
}

bool ConfigurationCommands::nextConfigurationRecord(ListedConfiguration& record) {
    return records_.next(record);
}

bool ConfigurationCommands::setConfigurationComment(const std::string& configId, const wire::WideString& comment) {
    return sendCommand(client_, protocol::SetConfigurationCommentRequest{.configId = configId, .comment = comment},
                       wire::toUtf8(comment));
}

bool ConfigurationCommands::deleteConfiguration(const std::string& configId, bool force) {
    return sendCommand(
        client_,
        protocol::DeleteConfigurationRequest{.force = static_cast<std::uint8_t>(force ? 1 : 0), .configId = configId},
        configId);
}

bool ConfigurationCommands::listConfigurationQueues(const std::string& configId) {
    return fillCursor(client_, queues_, protocol::ListConfigurationQueuesRequest{.configId = configId}, configId);
}

bool ConfigurationCommands::nextConfigurationQueue(protocol::ConfigQueueRecord& record) {
    return queues_.next(record);
}

bool ConfigurationCommands::removeConfigurationFromQueue(const std::string& configId, const std::string& queueId) {
    return sendCommand(client_, protocol::RemoveConfigurationFromQueueRequest{.configId = configId, .queueId = queueId},
                       queueId);
}

bool ConfigurationCommands::applyConfigurationForDriver(const std::string& configId, const std::string& modelId,
                                                        const std::string& driverId) {
    return sendCommand(
        client_,
        protocol::ApplyConfigurationForDriverRequest{.configId = configId, .modelId = modelId, .driverId = driverId},
        configId);
}

} // namespace client
