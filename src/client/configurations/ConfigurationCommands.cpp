#include "client/configurations/ConfigurationCommands.h"

#include "client/ServerCalls.h"
#include "protocol/configurations/ApplyConfigurationForDriverRequest.h"
#include "protocol/configurations/ApplyQueueConfigurationRequest.h"
#include "protocol/configurations/DeleteConfigurationRequest.h"
#include "protocol/configurations/ListConfigurationChoicesRequest.h"
#include "protocol/configurations/ListConfigurationQueuesRequest.h"
#include "protocol/configurations/ListConfigurationsRequest.h"
#include "protocol/configurations/ListQueueConfigurationsRequest.h"
#include "protocol/configurations/RemoveConfigurationFromQueueRequest.h"
#include "protocol/configurations/SetConfigurationCommentRequest.h"
#include "wire/WireDate.h"

namespace client {
namespace {

// Reads a list into its cursor, which is empty when it fails.
template <class R, class Request>
bool fill(CQVXAdminClass2& client, RecordCursor<R>& cursor, const Request& request, std::string summary) {
    std::vector<R> records;
    cursor.fill({});
    const bool listed = listRecords(client, request, records, std::move(summary));
    cursor.fill(std::move(records));
    return listed;
}

template <class R>
bool handOut(RecordCursor<R>& cursor, R& record) {
    auto next = cursor.next();
    if (!next)
        return false;
    record = std::move(*next);
    return true;
}

} // namespace

bool ConfigurationCommands::getConfigurations(const std::string& queueId, const std::string& driverMapId) {
    return fill(client_, entries_,
                protocol::ListQueueConfigurationsRequest{.queueId = queueId, .driverMapId = driverMapId}, queueId);
}

bool ConfigurationCommands::nextConfiguration(protocol::QueueConfigEntry& entry) {
    return handOut(entries_, entry);
}

bool ConfigurationCommands::getConfigChoices(const std::string& driverMapId) {
    return fill(client_, choices_, protocol::ListConfigurationChoicesRequest{.driverMapId = driverMapId}, driverMapId);
}

bool ConfigurationCommands::nextConfigChoice(protocol::QueueConfigChoice& choice) {
    return handOut(choices_, choice);
}

bool ConfigurationCommands::applyConfiguration(const std::string& queueId, const std::string& driverMapId,
                                               const std::string& configId) {
    return sendCommand(
        client_,
        protocol::ApplyQueueConfigurationRequest{.queueId = queueId, .driverMapId = driverMapId, .configId = configId},
        queueId);
}

bool ConfigurationCommands::listConfigurations(const std::string& modelId) {
    std::vector<protocol::ConfigurationRecord> records;
    records_.fill({});
    const bool listed = listRecords(client_, protocol::ListConfigurationsRequest{.modelId = modelId}, records, modelId);
    for (auto& record : records)
        record.date = wire::formatWireDateWide(record.date);
    records_.fill(std::move(records));
    return listed;
}

bool ConfigurationCommands::nextConfigurationRecord(protocol::ConfigurationRecord& record) {
    return handOut(records_, record);
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
    return fill(client_, queues_, protocol::ListConfigurationQueuesRequest{.configId = configId}, configId);
}

bool ConfigurationCommands::nextConfigurationQueue(protocol::ConfigQueueRecord& record) {
    return handOut(queues_, record);
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
