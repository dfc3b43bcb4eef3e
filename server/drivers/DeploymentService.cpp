#include "server/drivers/DeploymentService.h"

#include "protocol/drivers/DriverDeployment.h"
#include "server/commands/Refusal.h"
#include "server/commands/ReplyBuffer.h"
#include "server/drivers/YesOrNo.h"
#include "wire/WireUuid.h"

namespace server {

using protocol::StatusReply;
using wire::WideString;

namespace {

StatusReply refused(const WideString& text) {
    return refusal(u"Deployment not changed", text);
}

StatusReply deploymentIsGone() {
    return refused(u"The deployment was removed in the meantime.");
}

// The state that a request asks for; empty when one of its bytes is invalid.
template <class Request>
std::optional<DeploymentState> stateOf(const Request& request) {
    const auto use = yesOrNo(request.use);
    const auto install = yesOrNo(request.install);
    if (!use || !install || request.installMethod > protocol::installMethod::verbose) {
        return std::nullopt;
    }
    return DeploymentState{.use = *use, .install = *install, .installMethod = request.installMethod};
}

StatusReply stateIsUnknown() {
    return refused(u"These settings for using and installing a driver are not valid.");
}

} // namespace

std::optional<StatusReply> DeploymentService::refuse(const StoredDeployment& deployment) {
    const auto& place = deployment.place;
    if (!models_.find(place.modelId)) {
        return refused(u"The model does not exist any more.");
    }
    const auto driver = drivers_.find(deployment.driverId);
    if (!driver) {
        return refused(u"The driver was deleted in the meantime.");
    }
    if (driver->modelId != place.modelId && !models_.isAlternate(place.modelId, driver->modelId)) {
        return refused(u"The driver " + quoted(driver->record.version) +
                       u" is neither one of this model nor one of its alternates.");
    }
    const auto system = deployments_.findSystem(place.osId);
    if (!system) {
        return refused(u"Please choose an operating system.");
    }
    const protocol::DriverDeploymentRecord listed{.version = driver->record.version,
                                                  .comment = deployment.comment,
                                                  .deploymentId = deployment.id,
                                                  .osId = place.osId,
                                                  .osName = system->name,
                                                  .locale = place.locale};
    if (frameDataSize(listed) > largestReceivableFrame) {
        return refused(u"The texts of this deployment are too long to be sent back in one piece.");
    }
    return std::nullopt;
}

StatusReply DeploymentService::add(const protocol::AddDriverDeploymentRequest& request) {
    const auto state = stateOf(request);
    const auto keeps = yesOrNo(request.keepConfig);
    if (!state || !keeps) {
        return stateIsUnknown();
    }
    const StoredDeployment deployment{
        .id = wire::toText(wire::randomUuid()),
        .driverId = request.driverId,
        .place = {.modelId = request.modelId, .osId = request.osId, .locale = request.locale},
        .comment = request.comment,
        .state = *state};
    if (auto reply = refuse(deployment)) {
        return *reply;
    }
    if (const auto former = deployments_.idAt(deployment.place)) {
        if (*keeps) {
            configurations_.moveAll(*former, deployment.id);
        }
        deployments_.remove(*former);
    }
    deployments_.insert(deployment);
    return done();
}

StatusReply DeploymentService::update(const protocol::UpdateDriverDeploymentRequest& request) {
    const auto state = stateOf(request);
    const auto keeps = yesOrNo(request.keepConfig);
    if (!state || !keeps) {
        return stateIsUnknown();
    }
    const auto deployment = deployments_.find(request.deploymentId);
    if (!deployment) {
        return deploymentIsGone();
    }
    if (state->install && !deployment->state.install && !*keeps) {
        configurations_.removeAll(deployment->id);
    }
    deployments_.setState(deployment->id, *state);
    return done();
}

StatusReply DeploymentService::remove(const protocol::RemoveDriverDeploymentRequest& request) {
    if (!deployments_.find(request.deploymentId)) {
        return deploymentIsGone();
    }
    deployments_.remove(request.deploymentId);
    return done();
}

} // namespace server
