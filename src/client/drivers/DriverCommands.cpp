#include "client/drivers/DriverCommands.h"

#include "client/ServerCalls.h"
#include "client/drivers/VersionText.h"
#include "protocol/drivers/AddAlternateDriverRequest.h"
#include "protocol/drivers/AddBuiltInDriverRequest.h"
#include "protocol/drivers/AddDriverModelRequest.h"
#include "protocol/drivers/CountDeploymentConfigsRequest.h"
#include "protocol/drivers/DeleteDriverRequest.h"
#include "protocol/drivers/GetModelOctetOrderReply.h"
#include "protocol/drivers/GetModelOctetOrderRequest.h"
#include "protocol/drivers/ListDriverBrandsRequest.h"
#include "protocol/drivers/ListDriverDeploymentsRequest.h"
#include "protocol/drivers/ListDriverModelsRequest.h"
#include "protocol/drivers/ListDriversRequest.h"
#include "protocol/drivers/ListOperatingSystemsRequest.h"
#include "protocol/drivers/RemoveAlternateDriverRequest.h"
#include "protocol/drivers/RemoveDriverDeploymentRequest.h"
#include "protocol/drivers/SetDriverModelVisibleRequest.h"
#include "protocol/drivers/SetModelOctetOrderRequest.h"
#include "protocol/drivers/ShortDriverRecord.h"
#include "wire/WireDate.h"

namespace client {
namespace {

// A list for a cursor; whatever becomes of the command, the cursor holds nothing of an earlier one.
template <class R, class Request>
bool fill(RecordCursor<R>& cursor, CQVXAdminClass2& client, const Request& request, const std::string& summary = {}) {
    std::vector<R> records;
    cursor.fill({});
    const bool listed = listRecords(client, request, records, summary);
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

bool DriverCommands::listDriverBrands() {
    return fill(brands_, client_, protocol::ListDriverBrandsRequest{});
}

bool DriverCommands::nextDriverBrand(protocol::DriverBrandRecord& brand) {
    return handOut(brands_, brand);
}

std::vector<protocol::DriverModelRecord> DriverCommands::listDriverModels(std::uint8_t listKind,
                                                                          const std::string& parentId) {
    std::vector<protocol::DriverModelRecord> models;
    static_cast<void>(listRecords(
        client_, protocol::ListDriverModelsRequest{.listKind = listKind, .parentId = parentId}, models, parentId));
    return models;
}

bool DriverCommands::listOperatingSystems() {
    return fill(systems_, client_, protocol::ListOperatingSystemsRequest{});
}

bool DriverCommands::nextOperatingSystem(protocol::OperatingSystemRecord& system) {
    return handOut(systems_, system);
}

bool DriverCommands::listDrivers(std::uint8_t listKind, const std::string& parentId) {
    const protocol::ListDriversRequest request{.listKind = listKind, .parentId = parentId};
    drivers_.fill({});
    if (listKind == protocol::driverList::shortOfModel) {
        std::vector<protocol::ShortDriverRecord> unused;
        return listRecords(client_, request, unused, parentId);
    }
    std::vector<protocol::DriverRecord> drivers;
    const bool listed = listRecords(client_, request, drivers, parentId);
    for (auto& driver : drivers) {
        driver.version = localVersionText(driver.version);
        driver.uploadDate = wire::formatWireDate(driver.uploadDate);
    }
    drivers_.fill(std::move(drivers));
    return listed;
}

bool DriverCommands::nextDriver(protocol::DriverRecord& driver) {
    return handOut(drivers_, driver);
}

bool DriverCommands::listDriverDeployments(const std::string& modelId, const std::string& driverId) {
    return fill(deployments_, client_, protocol::ListDriverDeploymentsRequest{.modelId = modelId, .driverId = driverId},
                driverId.empty() ? modelId : driverId);
}

bool DriverCommands::nextDriverDeployment(protocol::DriverDeploymentRecord& deployment) {
    return handOut(deployments_, deployment);
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
