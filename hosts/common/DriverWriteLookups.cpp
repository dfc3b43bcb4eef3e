#include "hosts/common/DriverWriteLookups.h"

#include "protocol/drivers/Driver.h"
#include "protocol/drivers/DriverDeployment.h"
#include "protocol/drivers/DriverModel.h"

#include <array>

namespace common {
namespace {

using namespace protocol;

// Flags come as numbers or as digits: 0 and "0" are false, all other bytes true.
constexpr bool isYes(std::uint8_t byte) {
    return byte != 0 && byte != '0';
}

// Only the lists of drivers that hold whole records.
Shows driverDeleted(const DeleteDriverRequest& request, const SeenRequests& seen) {
    auto lists = seen.of<ListDriversRequest>();
    std::erase_if(lists, [](const ListDriversRequest& list) { return list.listKind == driverList::shortOfModel; });
    return showsGoneAmong<DriverRecord>(lists, &DriverRecord::driverId, request.driverId);
}

Shows modelAdded(const AddDriverModelRequest& request) {
    return showsNew<DriverModelRecord>(
        ListDriverModelsRequest{.listKind = driverModelList::ofBrand, .parentId = request.brandId},
        &DriverModelRecord::modelId,
        [name = request.name](const DriverModelRecord& shown) { return shown.name == name; });
}

Shows modelShown(const SetDriverModelVisibleRequest& request, const SeenRequests& seen) {
    auto lists = seen.of<ListDriverModelsRequest>();
    std::erase_if(lists, [](const ListDriverModelsRequest& list) { return list.listKind != driverModelList::ofBrand; });
    return showsChangedAmong<DriverModelRecord>(
        lists, &DriverModelRecord::modelId, request.modelId,
        [visible = isYes(request.visible)](const DriverModelRecord& shown) { return shown.visible == visible; });
}

Shows builtInAdded(const AddBuiltInDriverRequest& request) {
    return showsNew<DriverRecord>(ListDriversRequest{.listKind = driverList::ofModel, .parentId = request.modelId},
                                  &DriverRecord::driverId, [](const DriverRecord&) { return true; });
}

ListDriverModelsRequest alternatesOf(const std::string& modelId) {
    return {.listKind = driverModelList::alternates, .parentId = modelId};
}

Shows alternateAdded(const AddAlternateDriverRequest& request) {
    return showsChanged<DriverModelRecord>(alternatesOf(request.modelId), &DriverModelRecord::modelId,
                                           request.alternateModelId, [](const DriverModelRecord&) { return true; });
}

Shows alternateRemoved(const RemoveAlternateDriverRequest& request) {
    return showsGone<DriverModelRecord>(alternatesOf(request.modelId), &DriverModelRecord::modelId,
                                        request.alternateModelId);
}

Shows modelOctetOrderSet(const SetModelOctetOrderRequest& request) {
    return [=] { return client::CQVXAdminClass().getModelOctetOrder(request.modelId).value() == request.octetOrder; };
}

template <class Request>
bool sameState(const DriverDeploymentRecord& shown, const Request& wanted) {
    return isYes(shown.use) == isYes(wanted.use) && isYes(shown.install) == isYes(wanted.install) &&
           shown.installMethod == wanted.installMethod;
}

// A deployment that replaces another one also has an id of its own.
Shows deployed(const AddDriverDeploymentRequest& request) {
    return showsNew<DriverDeploymentRecord>(
        ListDriverDeploymentsRequest{.modelId = request.modelId, .driverId = request.driverId},
        &DriverDeploymentRecord::deploymentId, [=](const DriverDeploymentRecord& shown) {
            return shown.osId == request.osId && shown.comment == request.comment && sameState(shown, request);
        });
}

Shows deploymentChanged(const UpdateDriverDeploymentRequest& request, const SeenRequests& seen) {
    return showsChangedAmong<DriverDeploymentRecord>(
        seen.of<ListDriverDeploymentsRequest>(), &DriverDeploymentRecord::deploymentId, request.deploymentId,
        [=](const DriverDeploymentRecord& shown) { return sameState(shown, request); });
}

Shows deploymentRemoved(const RemoveDriverDeploymentRequest& request, const SeenRequests& seen) {
    return showsGoneAmong<DriverDeploymentRecord>(seen.of<ListDriverDeploymentsRequest>(),
                                                  &DriverDeploymentRecord::deploymentId, request.deploymentId);
}

// Whether ten zero bytes follow the id.
bool removesDeployment(wire::Message& message) {
    static_cast<void>(message.getString());
    const auto rest = message.bytes().last(message.remaining());
    return rest.size() == 10 && std::ranges::all_of(rest, [](std::uint8_t byte) { return byte == 0; });
}

constexpr WriteLookup removal = [] {
    auto one = lookup<RemoveDriverDeploymentRequest, deploymentRemoved>();
    one.isMeant = removesDeployment;
    return one;
}();

constexpr std::array driverLookups = {
    lookup<DeleteDriverRequest, driverDeleted>(),
    lookup<AddDriverModelRequest, modelAdded>(),
    lookup<SetDriverModelVisibleRequest, modelShown>(),
    lookup<AddBuiltInDriverRequest, builtInAdded>(),
    lookup<AddAlternateDriverRequest, alternateAdded>(),
    lookup<RemoveAlternateDriverRequest, alternateRemoved>(),
    lookup<SetModelOctetOrderRequest, modelOctetOrderSet>(),
    lookup<AddDriverDeploymentRequest, deployed>(),
    removal, // before the change, because it looks like one
    lookup<UpdateDriverDeploymentRequest, deploymentChanged>(),
};

} // namespace

std::span<const WriteLookup> driverWriteLookups() {
    return driverLookups;
}

} // namespace common
