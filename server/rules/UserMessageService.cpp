#include "server/rules/UserMessageService.h"

#include "server/rules/NamedTable.h"
#include "server/rules/WriteChecks.h"

namespace server {

namespace {

const wire::WideString messageWord = u"user message";

} // namespace

protocol::StatusReply UserMessageService::write(const protocol::WriteUserMessageRequest& request) {
    auto& messages = connection_.table<UserMessageTable>();
    auto message = request.message;
    if (const auto refused = refuseWrite(messages, messageWord, request.action, message)) {
        return *refused;
    }
    if (const auto refused = refuseName(messageWord, message.name)) {
        return *refused;
    }
    if (message.type < protocol::messageType::first || message.type > protocol::messageType::last ||
        message.icon > protocol::messageIcon::last) {
        return ruleRefused(u"The type or icon of the user message is not valid.");
    }
    const auto before = messages.find(message.id);
    message.builtIn = before && before->builtIn;
    return store(messages, request.action, message);
}

protocol::StatusReply UserMessageService::remove(const protocol::DeleteUserMessageRequest& request) {
    auto& messages = connection_.table<UserMessageTable>();
    if (const auto message = messages.find(request.id); message && message->builtIn) {
        return ruleRefused(u"The user message " + quoted(message->name) + u" is built in.");
    }
    return removeFrom(messages, messageWord, request.id);
}

} // namespace server
