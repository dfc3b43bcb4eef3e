#include "client/alarms/AlarmCommands.h"

#include "client/CursorCalls.h"
#include "protocol/alarms/AlarmChoices.h"
#include "protocol/alarms/AlarmProgram.h"
#include "protocol/alarms/EmailRecipient.h"
#include "protocol/alarms/ProgramAction.h"

namespace client {
namespace {

// The name of a record, or its id if it has no name.
std::string label(const wire::WideString& name, const std::string& id) {
    return name.empty() ? id : wire::toUtf8(name);
}

} // namespace

bool AlarmCommands::listEmailRecipients(const std::string& id) {
    return fillCursor(client_, recipients_, protocol::ListEmailRecipientsRequest{.id = id}, id);
}

bool AlarmCommands::nextEmailRecipient(protocol::EmailRecipientRecord& recipient) {
    return recipients_.next(recipient);
}

bool AlarmCommands::writeEmailRecipient(const protocol::EmailRecipientRecord& recipient) {
    return sendCommand(client_,
                       protocol::WriteEmailRecipientRequest{.id = recipient.id,
                                                            .name = recipient.name,
                                                            .email = recipient.email,
                                                            .active = static_cast<std::uint8_t>(recipient.active)},
                       label(recipient.name, recipient.id));
}

bool AlarmCommands::deleteEmailRecipient(const std::string& id) {
    return writeEmailRecipient({.id = id, .email = {}, .name = {}});
}

bool AlarmCommands::setRecipientActive(const std::string& id, bool active) {
    return sendCommand(client_,
                       protocol::SetRecipientActiveRequest{.id = id, .active = static_cast<std::uint8_t>(active)}, id);
}

bool AlarmCommands::listAlarmPrograms(std::uint8_t kind, const std::string& id) {
    return fillCursor(client_, programs_, protocol::ListAlarmProgramsRequest{.kind = kind, .filter = id}, id);
}

bool AlarmCommands::nextAlarmProgram(protocol::AlarmProgramRecord& program) {
    return programs_.next(program);
}

bool AlarmCommands::writeAlarmProgram(std::string& id, const wire::WideString& name, const wire::WideString& comment,
                                      const wire::WideString& createdBy) {
    auto reply = askServer<protocol::WriteAlarmProgramReply>(
        client_, protocol::WriteAlarmProgramRequest{.id = id, .name = name, .comment = comment, .createdBy = createdBy},
        label(name, id));
    if (!reply) {
        return false;
    }
    id = std::move(reply->id);
    return true;
}

bool AlarmCommands::deleteAlarmProgram(const std::string& id) {
    std::string answered = id;
    return writeAlarmProgram(answered, {}, {}, {});
}

bool AlarmCommands::listAlarmEvents(protocol::AlarmEventRecord& event) {
    return events_.next(client_, protocol::ListAlarmEventsRequest{}, event);
}

bool AlarmCommands::listAlarmActions(protocol::AlarmActionRecord& action) {
    return actions_.next(client_, protocol::ListAlarmActionsRequest{}, action);
}

bool AlarmCommands::listAlarmDestinations(std::uint16_t actionCode, protocol::AlarmDestinationRecord& destination) {
    return destinations_.next(client_, protocol::ListAlarmDestinationsRequest{.actionCode = actionCode}, destination);
}

bool AlarmCommands::listProgramActions(const std::string& programId) {
    return fillCursor(client_, programActions_, protocol::ListProgramActionsRequest{.programId = programId}, programId);
}

bool AlarmCommands::nextProgramAction(protocol::ProgramActionRecord& action) {
    return programActions_.next(action);
}

bool AlarmCommands::addProgramAction(const std::string& programId, const std::string& eventId, std::uint16_t actionCode,
                                     const std::string& destinationId) {
    return sendCommand(
        client_,
        protocol::AddProgramActionRequest{
            .programId = programId, .eventId = eventId, .actionCode = actionCode, .destinationId = destinationId},
        eventId);
}

bool AlarmCommands::deleteProgramAction(const std::string& actionId) {
    return sendCommand(client_, protocol::DeleteProgramActionRequest{.actionId = actionId}, actionId);
}

} // namespace client
