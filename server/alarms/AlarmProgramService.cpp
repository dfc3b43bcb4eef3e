#include "server/alarms/AlarmProgramService.h"

#include "protocol/alarms/AlarmProgram.h"
#include "server/alarms/AlarmProgramTable.h"
#include "server/alarms/EmailRecipientTable.h"
#include "server/alarms/ProgramActionTable.h"
#include "server/commands/Refusal.h"
#include "wire/WireUuid.h"

#include <fmt/chrono.h>

#include <ctime>

namespace server {

using protocol::StatusReply;
using wire::WideString;

namespace {

namespace kind = protocol::alarmProgramKind;
using Written = Outcome<protocol::WriteAlarmProgramReply>;

StatusReply notSaved(const WideString& text) {
    return refusal(u"Alarm program not saved", text);
}

Written refused(const WideString& text) {
    return {.status = notSaved(text), .reply = {}};
}

// The server's local time in the date format of the wire.
WideString dateOfNow() {
    return wire::toWide(fmt::format("{:%Y-%m-%d %H:%M:%S}", fmt::localtime(std::time(nullptr))));
}

} // namespace

Written AlarmProgramService::write(const protocol::WriteAlarmProgramRequest& request) {
    auto& programs = connection_.table<AlarmProgramTable>();
    const bool isNew = request.id.empty();
    StoredProgram program{.record = {}, .kind = kind::alarm};
    auto& record = program.record;
    if (isNew) {
        record.id = wire::toText(wire::randomUuid());
        record.creationDate = dateOfNow();
    } else {
        const auto found = programs.find(request.id);
        if (!found) {
            return refused(u"The alarm program does not exist any more.");
        }
        if (found->kind != kind::alarm) {
            return refused(u"Counter programs belong to the server and cannot be changed.");
        }
        record = found->record;
        if (request.name.empty() && request.comment.empty() && request.createdBy.empty()) {
            programs.remove(record.id);
            return {.status = done(), .reply = {.id = record.id}};
        }
    }
    record.name = request.name;
    record.comment = request.comment;
    record.createdBy = request.createdBy;
    // To a console a text ends at its first zero, so a name that begins with one is empty there.
    if (record.name.empty() || record.name.front() == u'\0') {
        return refused(u"An alarm program needs a name.");
    }
    if (frameDataSize(record) > largestReceivableFrame) {
        return refused(u"The texts of the alarm program are too long to be sent back in one piece.");
    }
    if (programs.nameTaken(kind::alarm, record.name, record.id)) {
        return refused(u"There is an alarm program named " + server::quoted(record.name) + u" already.");
    }
    if (isNew) {
        programs.insert(program);
    } else {
        programs.update(record);
    }
    return {.status = done(), .reply = {.id = record.id}};
}

StatusReply AlarmProgramService::addAction(const protocol::AddProgramActionRequest& request) {
    auto& actions = connection_.table<ProgramActionTable>();
    const auto program = connection_.table<AlarmProgramTable>().find(request.programId);
    if (!program || program->kind != kind::alarm) {
        return notSaved(u"The alarm program does not exist any more.");
    }
    if (!actions.eventExists(request.eventId)) {
        return notSaved(u"This server knows no such event.");
    }
    const auto needsRecipient = actions.needsRecipient(request.actionCode);
    if (!needsRecipient) {
        return notSaved(u"This server knows no such action.");
    }
    if (!*needsRecipient && !request.destinationId.empty()) {
        return notSaved(u"This action has no destination.");
    }
    if (*needsRecipient && !connection_.table<EmailRecipientTable>().exists(request.destinationId)) {
        return notSaved(u"This action needs a recipient as its destination.");
    }
    if (actions.exists(request)) {
        return notSaved(u"The alarm program " + server::quoted(program->record.name) + u" has this action already.");
    }
    actions.insert(wire::toText(wire::randomUuid()), request);
    return done();
}

StatusReply AlarmProgramService::removeAction(const protocol::DeleteProgramActionRequest& request) {
    return connection_.table<ProgramActionTable>().remove(request.actionId)
               ? done()
               : notSaved(u"The action does not exist any more.");
}

} // namespace server
