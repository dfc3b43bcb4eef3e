#include "hosts/common/ConfigurationWriteLookups.h"

#include "protocol/configurations/Configuration.h"
#include "protocol/configurations/QueueConfiguration.h"
#include "protocol/drivers/DriverDeployment.h"

#include <array>

namespace common {
namespace {

using namespace protocol;

// A queue that uses nothing with a driver map is listed with an empty configuration, or not at all.
Shows applied(const ApplyQueueConfigurationRequest& request) {
    return [=] {
        const auto entries = listed<QueueConfigEntry>(
            ListQueueConfigurationsRequest{.queueId = request.queueId, .driverMapId = request.driverMapId});
        const auto* const entry = findById(entries, &QueueConfigEntry::driverMapId, request.driverMapId);
        return entry != nullptr ? entry->configId == request.configId : request.configId.empty();
    };
}

Shows commented(const SetConfigurationCommentRequest& request, const SeenRequests& seen) {
    return showsChangedAmong<ConfigurationRecord>(
        seen.of<ListConfigurationsRequest>(), &ConfigurationRecord::configId, request.configId,
        [comment = request.comment](const ConfigurationRecord& shown) { return shown.comment == comment; });
}

Shows deleted(const DeleteConfigurationRequest& request, const SeenRequests& seen) {
    return showsGoneAmong<ConfigurationRecord>(seen.of<ListConfigurationsRequest>(), &ConfigurationRecord::configId,
                                               request.configId);
}

Shows takenFromQueue(const RemoveConfigurationFromQueueRequest& request) {
    return showsGone<ConfigQueueRecord>(ListConfigurationQueuesRequest{.configId = request.configId},
                                        &ConfigQueueRecord::queueId, request.queueId);
}

// Every queue of the model then uses some configuration with each deployment of the driver, and as many of them use
// this one.
Shows appliedForDriver(const ApplyConfigurationForDriverRequest& request) {
    return [=] {
        const auto configurations = listed<ConfigurationRecord>(ListConfigurationsRequest{.modelId = request.modelId});
        const auto* const configuration = findById(configurations, &ConfigurationRecord::configId, request.configId);
        const auto deployments = listed<DriverDeploymentRecord>(
            ListDriverDeploymentsRequest{.modelId = request.modelId, .driverId = request.driverId});
        return configuration != nullptr && !deployments.empty() &&
               std::ranges::all_of(deployments, [&](const DriverDeploymentRecord& deployment) {
                   CountDeploymentConfigsReply counts;
                   client::CQVXAdminClass client;
                   if (!client.countDeploymentConfigs(request.modelId, deployment.osId, deployment.locale, counts)) {
                       throw std::runtime_error("the queues can't be counted");
                   }
                   return counts.queuesWithConfigs == counts.totalQueues &&
                          configuration->useCount >= std::min<std::uint32_t>(counts.totalQueues, 65535);
               });
    };
}

constexpr std::array configurationLookups = {
    lookup<ApplyQueueConfigurationRequest, applied>(),
    lookup<SetConfigurationCommentRequest, commented>(),
    lookup<DeleteConfigurationRequest, deleted>(),
    lookup<RemoveConfigurationFromQueueRequest, takenFromQueue>(),
    lookup<ApplyConfigurationForDriverRequest, appliedForDriver>(),
};

} // namespace

std::span<const WriteLookup> configurationWriteLookups() {
    return configurationLookups;
}

} // namespace common
