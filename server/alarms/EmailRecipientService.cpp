#include "server/alarms/EmailRecipientService.h"

#include "protocol/alarms/ProgramAction.h"
#include "server/alarms/EmailRecipientTable.h"
#include "server/commands/Refusal.h"
#include "server/commands/ReplyBuffer.h"
#include "wire/WireUuid.h"

#include <algorithm>

namespace server {

using protocol::EmailRecipientRecord;
using protocol::StatusReply;
using wire::WideString;

namespace {

// A yes-or-no byte is sent as a number or as its digit.
bool isYes(std::uint8_t byte) {
    return byte != 0 && byte != '0';
}

// To a console a text ends at its first zero, so one that begins with a zero is empty there.
bool isBlank(const WideString& text) {
    return text.empty() || text.front() == u'\0';
}

// It has to fit into a frame alone, and also in the list of a program's actions, beside the names of an event and an
// action.
bool isTooLong(const EmailRecipientRecord& recipient) {
    constexpr std::size_t longestLabel = 40;
    const protocol::ProgramActionRecord action{.id = recipient.id,
                                               .actionName = std::string(longestLabel, ' '),
                                               .eventName = std::string(longestLabel, ' '),
                                               .recipient = recipient.name};
    return std::max(frameDataSize(recipient), frameDataSize(action)) > largestReceivableFrame;
}

StatusReply recipientNotSaved(const WideString& text) {
    return refusal(u"Recipient not saved", text);
}

} // namespace

StatusReply EmailRecipientService::write(const protocol::WriteEmailRecipientRequest& request) {
    auto& recipients = connection_.table<EmailRecipientTable>();
    const bool isNew = request.id.empty();
    if (!isNew && !recipients.exists(request.id)) {
        return recipientNotSaved(u"The recipient does not exist any more.");
    }
    if (!isNew && request.name.empty() && request.email.empty()) {
        recipients.remove(request.id);
        return done();
    }
    if (isBlank(request.name) || isBlank(request.email)) {
        return recipientNotSaved(u"A recipient needs a name and an e-mail address.");
    }
    const EmailRecipientRecord recipient{.id = isNew ? wire::toText(wire::randomUuid()) : request.id,
                                         .email = request.email,
                                         .name = request.name,
                                         .active = isYes(request.active)};
    if (isTooLong(recipient)) {
        return recipientNotSaved(u"The name and the address of the recipient are too long.");
    }
    if (isNew) {
        recipients.insert(recipient);
    } else {
        recipients.update(recipient);
    }
    return done();
}

StatusReply EmailRecipientService::setActive(const protocol::SetRecipientActiveRequest& request) {
    auto& recipients = connection_.table<EmailRecipientTable>();
    if (!recipients.exists(request.id)) {
        return recipientNotSaved(u"The recipient does not exist any more.");
    }
    recipients.setActive(request.id, isYes(request.active));
    return done();
}

} // namespace server
