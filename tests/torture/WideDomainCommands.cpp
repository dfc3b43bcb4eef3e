#include "tests/torture/WideDomainCommands.h"

#include "protocol/alarms/AlarmProgram.h"
#include "protocol/configurations/Configuration.h"
#include "protocol/drivers/Driver.h"
#include "protocol/drivers/DriverBrand.h"
#include "protocol/drivers/DriverDeployment.h"
#include "protocol/drivers/DriverModel.h"
#include "protocol/inventory/InventoryReport.h"
#include "protocol/rules/PricePlan.h"
#include "protocol/rules/RuleGroup.h"
#include "tests/torture/Requests.h"
#include "wire/WireUuid.h"

namespace torture {

namespace {

std::vector<protocol::DriverModelRecord> modelsAt(std::uint16_t port) {
    std::vector<protocol::DriverModelRecord> models;
    const auto brands = listOf<protocol::DriverBrandRecord>(port, protocol::ListDriverBrandsRequest{}).value();
    for (const auto& brand : brands) {
        const auto ofBrand = listOf<protocol::DriverModelRecord>(
            port, protocol::ListDriverModelsRequest{.listKind = 0, .parentId = brand.brandId});
        models.insert(models.end(), ofBrand.value().begin(), ofBrand.value().end());
    }
    return models;
}

} // namespace

// Replaces a deployment with configurations, which move to the new one.
Bytes replaceDeployment(std::uint16_t port) {
    const auto models = modelsAt(port);
    for (const auto& model : models) {
        const auto deployments = listOf<protocol::DriverDeploymentRecord>(
            port, protocol::ListDriverDeploymentsRequest{.modelId = model.modelId, .driverId = {}});
        const auto drivers = listOf<protocol::DriverRecord>(
            port, protocol::ListDriversRequest{.listKind = protocol::driverList::ofModel, .parentId = model.modelId});
        for (const auto& deployment : deployments.value()) {
            const protocol::CountDeploymentConfigsRequest question{
                .modelId = model.modelId, .osId = deployment.osId, .locale = deployment.locale};
            const auto count = askFor<protocol::CountDeploymentConfigsReply>(port, question);
            if (count.value().queuesWithConfigs > 0) {
                return requestOf(protocol::AddDriverDeploymentRequest{.driverId = drivers.value().front().driverId,
                                                                      .modelId = model.modelId,
                                                                      .comment = u"in its place",
                                                                      .locale = deployment.locale,
                                                                      .osId = deployment.osId,
                                                                      .use = 1,
                                                                      .install = 1,
                                                                      .installMethod = 0,
                                                                      .keepConfig = 1});
            }
        }
    }
    throw std::runtime_error("no deployment of the sample has configurations");
}

Bytes deleteUsedConfiguration(std::uint16_t port) {
    const auto models = modelsAt(port);
    for (const auto& model : models) {
        const auto configurations =
            listOf<protocol::ConfigurationRecord>(port, protocol::ListConfigurationsRequest{.modelId = model.modelId});
        for (const auto& configuration : configurations.value()) {
            if (configuration.useCount > 0) {
                return requestOf(protocol::DeleteConfigurationRequest{.force = 1, .configId = configuration.configId});
            }
        }
    }
    throw std::runtime_error("no configuration of the sample is in use");
}

// Replaces all prices of a plan.
Bytes rewritePricePlan(std::uint16_t port) {
    const auto plans = listOf<protocol::PricePlanRecord>(port, protocol::ListPricePlansRequest{}).value();
    for (const auto& plan : plans) {
        auto entries =
            listOf<protocol::PriceEntryRecord>(port, protocol::ListPriceEntriesRequest{.planId = plan.id}).value();
        if (entries.size() < 2) {
            continue;
        }
        for (auto& entry : entries) {
            entry.id = wire::toText(wire::randomUuid());
            entry.basePrice += 1;
        }
        return requestOf(protocol::WritePricePlanRequest{.action = 2, .plan = plan, .entries = entries});
    }
    throw std::runtime_error("no price plan of the sample has several prices");
}

Bytes deleteRuleGroup(std::uint16_t port) {
    const auto groups = listOf<protocol::RuleGroupRecord>(port, protocol::ListRuleGroupsRequest{}).value();
    return requestOf(protocol::DeleteRuleGroupRequest{.action = 3, .id = groups.front().id});
}

Bytes deleteAlarmProgram(std::uint16_t port) {
    const auto programs = listOf<protocol::AlarmProgramRecord>(port, protocol::ListAlarmProgramsRequest{}).value();
    return requestOf(
        protocol::WriteAlarmProgramRequest{.id = programs.front().id, .name = {}, .comment = {}, .createdBy = {}});
}

Bytes createInventoryReport(std::uint16_t) {
    protocol::CreateInventoryReportRequest request;
    request.reportUser = u"admin";
    request.reportName = u"All that was found";
    return requestOf(request);
}

} // namespace torture
