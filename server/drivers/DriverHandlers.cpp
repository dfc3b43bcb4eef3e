#include "server/drivers/DriverHandlers.h"

#include "protocol/drivers/Driver.h"
#include "protocol/drivers/DriverBrand.h"
#include "protocol/drivers/DriverDeployment.h"
#include "protocol/drivers/DriverModel.h"
#include "protocol/drivers/OperatingSystem.h"
#include "server/drivers/DeploymentService.h"
#include "server/drivers/DriverService.h"

#include <algorithm>
#include <cstring>

namespace server {

namespace {

using namespace protocol; // requests and records

Listing listBrands(StoreConnection& connection, const ListDriverBrandsRequest&) {
    return connection.table<DriverModelTable>().listBrands();
}

Listing listModels(StoreConnection& connection, const ListDriverModelsRequest& request) {
    return connection.table<DriverModelTable>().list(request.listKind, request.parentId);
}

Listing listSystems(StoreConnection& connection, const ListOperatingSystemsRequest&) {
    return connection.table<DeploymentTable>().listSystems();
}

// An unknown kind of list selects nothing.
Listing listDrivers(StoreConnection& connection, const ListDriversRequest& request) {
    auto& drivers = connection.table<DriverTable>();
    if (request.listKind == driverList::ofBrand) {
        return drivers.listOfBrand(request.parentId);
    }
    return request.listKind == driverList::ofModel ? drivers.listOfModel(request.parentId) : Listing{};
}

Listing listShortDrivers(StoreConnection& connection, const ListDriversRequest& request) {
    return connection.table<DriverTable>().listShort(request.parentId);
}

Listing listDeployments(StoreConnection& connection, const ListDriverDeploymentsRequest& request) {
    return connection.table<DeploymentTable>().list(request.modelId, request.driverId);
}

// 0 for a model that does not exist.
std::optional<GetModelOctetOrderReply> tellOctetOrder(StoreConnection& connection,
                                                      const GetModelOctetOrderRequest& request) {
    return GetModelOctetOrderReply{.octetOrder =
                                       connection.table<DriverModelTable>().octetOrder(request.modelId).value_or(0)};
}

std::optional<CountDeploymentConfigsReply> countConfigurations(StoreConnection& connection,
                                                               const CountDeploymentConfigsRequest& request) {
    const StoreConnection::Moment moment(connection);
    auto& configurations = connection.table<QueueConfigurationTable>();
    const auto deployed = connection.table<DeploymentTable>().idAt(
        {.modelId = request.modelId, .osId = request.osId, .locale = request.locale});
    return CountDeploymentConfigsReply{.queuesWithConfigs =
                                           deployed ? configurations.queuesWithConfiguration(*deployed) : 0,
                                       .totalQueues = configurations.queuesOfModel(request.modelId)};
}

bool asksForShortDrivers(Fields fields) {
    return !fields.empty() && fields.front() == driverList::shortOfModel;
}

// A removal is a change with ten zero bytes after the id; the four zeros of a change that stops using a deployment are
// not one.
bool removesDeployment(Fields fields) {
    constexpr std::size_t zeros = 10;
    std::uint16_t idSize = 0;
    if (fields.size() < sizeof idSize) {
        return false;
    }
    std::memcpy(&idSize, fields.data(), sizeof idSize);
    if (fields.size() < sizeof idSize + idSize + zeros) {
        return false;
    }
    return std::ranges::all_of(fields.subspan(sizeof idSize + idSize, zeros),
                               [](std::uint8_t byte) { return byte == 0; });
}

constexpr Handler when(bool (*takes)(Fields), Handler handler) {
    handler.takes = takes;
    return handler;
}

// If several handlers have one opcode, the first one that takes the request answers.
constexpr Handler handlers[] = {
    lists<ListDriverBrandsRequest, DriverBrandRecord, listBrands>,
    lists<ListDriverModelsRequest, DriverModelRecord, listModels>,
    lists<ListOperatingSystemsRequest, OperatingSystemRecord, listSystems>,
    when(&asksForShortDrivers, lists<ListDriversRequest, ShortDriverRecord, listShortDrivers>),
    lists<ListDriversRequest, DriverRecord, listDrivers>,
    changes<DriverService, &DriverService::remove, DeleteDriverRequest>,
    lists<ListDriverDeploymentsRequest, DriverDeploymentRecord, listDeployments>,
    changes<DeploymentService, &DeploymentService::add, AddDriverDeploymentRequest>,
    when(&removesDeployment, changes<DeploymentService, &DeploymentService::remove, RemoveDriverDeploymentRequest>),
    changes<DeploymentService, &DeploymentService::update, UpdateDriverDeploymentRequest>,
    changes<DriverService, &DriverService::setVisible, SetDriverModelVisibleRequest>,
    changes<DriverService, &DriverService::addModel, AddDriverModelRequest>,
    changes<DriverService, &DriverService::addBuiltIn, AddBuiltInDriverRequest>,
    changes<DriverService, &DriverService::addAlternate, AddAlternateDriverRequest>,
    changes<DriverService, &DriverService::removeAlternate, RemoveAlternateDriverRequest>,
    changes<DriverService, &DriverService::setOctetOrder, SetModelOctetOrderRequest>,
    answers<GetModelOctetOrderRequest, tellOctetOrder>,
    answers<CountDeploymentConfigsRequest, countConfigurations>,
};

} // namespace

std::span<const Handler> driverHandlers() {
    return handlers;
}

} // namespace server
