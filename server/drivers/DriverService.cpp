#include "server/drivers/DriverService.h"

#include "server/commands/Refusal.h"
#include "server/commands/ReplyBuffer.h"
#include "server/drivers/UploadTime.h"
#include "server/drivers/YesOrNo.h"
#include "wire/Text.h"
#include "wire/WireUuid.h"

namespace server {

using protocol::StatusReply;
using wire::WideString;

namespace {

constexpr std::uint32_t lastOctetOrder = 2;

StatusReply refuse(const WideString& text) {
    return refusal(u"Driver catalogue not changed", text);
}

StatusReply modelIsGone() {
    return refuse(u"The model does not exist any more.");
}

} // namespace

StatusReply DriverService::addModel(const protocol::AddDriverModelRequest& request) {
    const StoredModel model{
        .record = {.modelId = wire::toText(wire::randomUuid()), .name = request.name, .visible = true},
        .brandId = request.brandId};
    if (!models_.hasBrand(request.brandId)) {
        return refuse(u"The brand does not exist any more.");
    }
    // To a console a text ends at its first zero, so a name that begins with one is empty there.
    if (request.name.empty() || request.name.front() == u'\0') {
        return refuse(u"A model needs a name.");
    }
    if (frameDataSize(model.record) > largestReceivableFrame) {
        return refuse(u"The name of the model is too long.");
    }
    if (models_.nameTaken(request.brandId, request.name)) {
        return refuse(u"There is a model named " + quoted(request.name) + u" of this brand already.");
    }
    models_.insert(model);
    return done();
}

StatusReply DriverService::setVisible(const protocol::SetDriverModelVisibleRequest& request) {
    const auto visible = yesOrNo(request.visible);
    if (!visible) {
        return refuse(u"A model must be either visible or hidden.");
    }
    if (!models_.find(request.modelId)) {
        return modelIsGone();
    }
    models_.setVisible(request.modelId, *visible);
    return done();
}

StatusReply DriverService::setOctetOrder(const protocol::SetModelOctetOrderRequest& request) {
    if (request.octetOrder > lastOctetOrder) {
        return refuse(u"There is no such octet order.");
    }
    if (!models_.find(request.modelId)) {
        return modelIsGone();
    }
    models_.setOctetOrder(request.modelId, request.octetOrder);
    return done();
}

StatusReply DriverService::addAlternate(const protocol::AddAlternateDriverRequest& request) {
    const auto model = models_.find(request.modelId);
    const auto alternate = models_.find(request.alternateModelId);
    if (!model || !alternate) {
        return modelIsGone();
    }
    if (request.modelId == request.alternateModelId) {
        return refuse(u"A model cannot be an alternate of itself.");
    }
    if (models_.isAlternate(request.modelId, request.alternateModelId)) {
        return refuse(quoted(alternate->record.name) + u" is an alternate of " + quoted(model->record.name) +
                      u" already.");
    }
    models_.addAlternate(request.modelId, request.alternateModelId);
    return done();
}

StatusReply DriverService::removeAlternate(const protocol::RemoveAlternateDriverRequest& request) {
    if (!models_.isAlternate(request.modelId, request.alternateModelId)) {
        return refuse(u"The alternate was removed in the meantime.");
    }
    models_.removeAlternate(request.modelId, request.alternateModelId);
    return done();
}

StatusReply DriverService::addBuiltIn(const protocol::AddBuiltInDriverRequest& request) {
    const auto model = models_.find(request.modelId);
    if (!model) {
        return modelIsGone();
    }
    if (drivers_.hasBuiltIn(request.modelId)) {
        return refuse(quoted(model->record.name) + u" has the built-in driver already.");
    }
    const auto now = uploadTime(std::chrono::system_clock::now());
    drivers_.insert({.record = {.driverId = wire::toText(wire::randomUuid()),
                                .version = u"Built-in driver (" + wire::toWide(now) + u")",
                                .comment = u"Comes with the operating system",
                                .uploadDate = now,
                                .uploadedBy = u"Server"},
                     .modelId = request.modelId,
                     .builtIn = true});
    return done();
}

StatusReply DriverService::remove(const protocol::DeleteDriverRequest& request) {
    const auto driver = drivers_.find(request.driverId);
    if (!driver) {
        return refuse(u"The driver was deleted in the meantime.");
    }
    if (driver->record.inUse != 0) {
        return refuse(u"The driver " + quoted(driver->record.version) +
                      u" is deployed. Please remove its deployments first.");
    }
    drivers_.remove(request.driverId);
    return done();
}

} // namespace server
