#include "client/drivers/DriverCommands.h"

#include "client/CursorCalls.h"
#include "client/drivers/VersionText.h"
#include "protocol/drivers/Driver.h"
#include "protocol/drivers/DriverBrand.h"
#include "protocol/drivers/DriverDeployment.h"
#include "protocol/drivers/DriverModel.h"
#include "protocol/drivers/OperatingSystem.h"
#include "wire/WireDate.h"

namespace client {
bool DriverCommands::listDriverBrands() {
    return fillCursor(client_, brands_, protocol::ListDriverBrandsRequest{});
}

bool DriverCommands::nextDriverBrand(protocol::DriverBrandRecord& brand) {
    return brands_.next(brand);
}

bool DriverCommands::listDriverModels(std::uint8_t listKind, const std::string& parentId,
                                      std::vector<protocol::DriverModelRecord>& models) {
    return listAllRecords(client_, protocol::ListDriverModelsRequest{.listKind = listKind, .parentId = parentId},
                          models, parentId);
}

bool DriverCommands::listOperatingSystems() {
    return fillCursor(client_, systems_, protocol::ListOperatingSystemsRequest{});
}

bool DriverCommands::nextOperatingSystem(protocol::OperatingSystemRecord& system) {
    return systems_.next(system);
}

bool DriverCommands::listDrivers(std::uint8_t listKind, const std::string& parentId) {
    const protocol::ListDriversRequest request{.listKind = listKind, .parentId = parentId};
    drivers_.clear();
    if (listKind == protocol::driverList::shortOfModel) {
        std::vector<protocol::ShortDriverRecord> unused;
        return listRecords(client_, request, unused, parentId);
    }
    return fillCompleted<protocol::DriverRecord>(
        client_, drivers_, request, parentId, [](protocol::DriverRecord&& sent) {
            sent.version = localVersionText(sent.version);
            auto text = wire::fromCodePage(wire::formatWireDate(sent.uploadDate));
            return ListedDriver{std::move(sent), std::move(text)};
        });
}

bool DriverCommands::nextDriver(ListedDriver& driver) {
    return drivers_.next(driver);
}

bool DriverCommands::listDriverDeployments(const std::string& modelId, const std::string& driverId) {
    return fillCursor(client_, deployments_,
                      protocol::ListDriverDeploymentsRequest{.modelId = modelId, .driverId = driverId},
                      driverId.empty() ? modelId : driverId);
}

bool DriverCommands::nextDriverDeployment(protocol::DriverDeploymentRecord& deployment) {
    return deployments_.next(deployment);
}

bool DriverCommands::deleteDriver(const std::string& driverId) {
    return sendCommand(client_, protocol::DeleteDriverRequest{.driverId = driverId}, driverId);
}

bool DriverCommands::addDriverDeployment(const protocol::AddDriverDeploymentRequest& deployment) {
    return sendCommand(client_, deployment, deployment.driverId);
}

bool DriverCommands::updateDriverDeployment(const protocol::UpdateDriverDeploymentRequest& change) {
    return sendCommand(client_, change, change.deploymentId);
}

bool DriverCommands::removeDriverDeployment(const std::string& deploymentId) {
    return sendCommand(client_, protocol::RemoveDriverDeploymentRequest{.deploymentId = deploymentId}, deploymentId);
}

bool DriverCommands::countDeploymentConfigs(const std::string& modelId, const std::string& osId,
                                            const wire::WideString& locale,
                                            protocol::CountDeploymentConfigsReply& counts) {
    counts = {};
    const auto reply = askServer<protocol::CountDeploymentConfigsReply>(
        client_, protocol::CountDeploymentConfigsRequest{.modelId = modelId, .osId = osId, .locale = locale}, modelId);
    counts = reply.value_or(protocol::CountDeploymentConfigsReply{});
    return reply.has_value();
}

bool DriverCommands::setDriverModelVisible(const std::string& modelId, bool visible) {
    const std::uint8_t byte = visible ? 1 : 0;
    return sendCommand(client_, protocol::SetDriverModelVisibleRequest{.visible = byte, .modelId = modelId}, modelId);
}

bool DriverCommands::addDriverModel(const std::string& brandId, const wire::WideString& name) {
    return sendCommand(client_, protocol::AddDriverModelRequest{.brandId = brandId, .name = name}, wire::toUtf8(name));
}

bool DriverCommands::addBuiltInDriver(const std::string& modelId) {
    return sendCommand(client_, protocol::AddBuiltInDriverRequest{.modelId = modelId}, modelId);
}

bool DriverCommands::addAlternateDriver(const std::string& modelId, const std::string& alternateModelId) {
    return sendCommand(client_,
                       protocol::AddAlternateDriverRequest{.modelId = modelId, .alternateModelId = alternateModelId},
                       modelId);
}

bool DriverCommands::removeAlternateDriver(const std::string& modelId, const std::string& alternateModelId) {
    return sendCommand(client_,
                       protocol::RemoveAlternateDriverRequest{.modelId = modelId, .alternateModelId = alternateModelId},
                       modelId);
}

bool DriverCommands::setModelOctetOrder(const std::string& modelId, std::uint32_t octetOrder) {
    return sendCommand(client_, protocol::SetModelOctetOrderRequest{.octetOrder = octetOrder, .modelId = modelId},
                       modelId);
}

std::optional<std::uint32_t> DriverCommands::getModelOctetOrder(const std::string& modelId) {
    const auto reply = askServer<protocol::GetModelOctetOrderReply>(
        client_, protocol::GetModelOctetOrderRequest{.modelId = modelId}, modelId);
    return reply ? std::optional(reply->octetOrder) : std::nullopt;
}

} // namespace client
