#include "server/configurations/ConfigurationService.h"

#include "server/commands/Refusal.h"

namespace server {

using protocol::StatusReply;

namespace {

// So that it fits into a frame beside everything else in the configuration entry of a queue.
constexpr std::size_t longestComment = 10000;

StatusReply notSaved(const wire::WideString& text) {
    return refusal(u"Not saved", text);
}

StatusReply noSuchConfiguration() {
    return notSaved(u"The configuration does not exist any more.");
}

} // namespace

StatusReply ConfigurationService::setComment(const protocol::SetConfigurationCommentRequest& request) {
    const auto found = configurations_.find(request.configId);
    if (!found) {
        return noSuchConfiguration();
    }
    // To a console a text ends at its first zero, so a comment that begins with one is empty there.
    if (request.comment.empty() || request.comment.front() == u'\0') {
        return notSaved(u"A configuration needs a comment, which is its name.");
    }
    if (request.comment.size() > longestComment) {
        return notSaved(u"The comment is longer than " + wire::toWide(std::to_string(longestComment)) +
                        u" characters.");
    }
    if (configurations_.nameTaken(found->modelId, request.comment, request.configId)) {
        return notSaved(u"There is a configuration " + quoted(request.comment) + u" of this model already.");
    }
    configurations_.setComment(request.configId, request.comment);
    return done();
}

StatusReply ConfigurationService::remove(const protocol::DeleteConfigurationRequest& request) {
    const auto found = configurations_.find(request.configId);
    if (!found) {
        return noSuchConfiguration();
    }
    if (request.force == 0 && found->record.useCount > 0) {
        return notSaved(u"The configuration " + quoted(found->record.comment) + u" is being used.");
    }
    configurations_.remove(request.configId);
    return done();
}

StatusReply ConfigurationService::applyToQueue(const protocol::ApplyQueueConfigurationRequest& request) {
    const auto model = queues_.modelOf(request.queueId);
    if (!model) {
        return notSaved(u"The queue does not exist any more.");
    }
    if (configurations_.modelOfDeployment(request.driverMapId) != model) {
        return notSaved(u"The driver is not deployed for the model of this queue any more.");
    }
    if (request.configId.empty()) {
        queues_.remove(request.queueId, request.driverMapId);
        return done();
    }
    const auto found = configurations_.find(request.configId);
    if (!found) {
        return noSuchConfiguration();
    }
    if (found->modelId != model) {
        return notSaved(u"The configuration " + quoted(found->record.comment) + u" is for another model.");
    }
    queues_.put(request.queueId, request.driverMapId, request.configId);
    return done();
}

StatusReply ConfigurationService::removeFromQueue(const protocol::RemoveConfigurationFromQueueRequest& request) {
    return queues_.removeFromQueue(request.queueId, request.configId)
               ? done()
               : notSaved(u"The queue does not use the configuration any more.");
}

StatusReply ConfigurationService::applyForDriver(const protocol::ApplyConfigurationForDriverRequest& request) {
    const auto found = configurations_.find(request.configId);
    if (!found) {
        return noSuchConfiguration();
    }
    if (found->modelId != request.modelId) {
        return notSaved(u"The configuration " + quoted(found->record.comment) + u" is for another model.");
    }
    return queues_.putForDriver(request.modelId, request.driverId, request.configId)
               ? done()
               : notSaved(u"The driver is not deployed for this model.");
}

} // namespace server
