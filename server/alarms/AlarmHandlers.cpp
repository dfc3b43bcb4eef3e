#include "server/alarms/AlarmHandlers.h"

#include "protocol/alarms/AlarmActionRecord.h"
#include "protocol/alarms/AlarmDestinationRecord.h"
#include "protocol/alarms/AlarmEventRecord.h"
#include "protocol/alarms/ProgramActionRecord.h"
#include "server/alarms/AlarmProgramRules.h"
#include "server/alarms/AlarmProgramTable.h"
#include "server/alarms/EmailRecipientRules.h"
#include "server/alarms/EmailRecipientTable.h"
#include "server/alarms/ProgramActionTable.h"

namespace server {

namespace {

template <class Table, class Request>
Listing listOf(Estate& estate, const Request& request) {
    return estate.table<Table>().list(request);
}

template <class Table, class Request, class R>
constexpr Handler listsFrom = lists<Request, R, &listOf<Table, Request>>;

constexpr Handler handlers[] = {
    listsFrom<EmailRecipientTable, protocol::ListEmailRecipientsRequest, protocol::EmailRecipientRecord>,
    changes<EmailRecipientRules, &EmailRecipientRules::write, protocol::WriteEmailRecipientRequest>,
    changes<EmailRecipientRules, &EmailRecipientRules::setActive, protocol::SetRecipientActiveRequest>,
    listsFrom<AlarmProgramTable, protocol::ListAlarmProgramsRequest, protocol::AlarmProgramRecord>,
    changesWithReply<AlarmProgramRules, &AlarmProgramRules::write, protocol::WriteAlarmProgramRequest>,
    listsFrom<ProgramActionTable, protocol::ListAlarmEventsRequest, protocol::AlarmEventRecord>,
    listsFrom<ProgramActionTable, protocol::ListAlarmActionsRequest, protocol::AlarmActionRecord>,
    listsFrom<ProgramActionTable, protocol::ListAlarmDestinationsRequest, protocol::AlarmDestinationRecord>,
    listsFrom<ProgramActionTable, protocol::ListProgramActionsRequest, protocol::ProgramActionRecord>,
    changes<AlarmProgramRules, &AlarmProgramRules::addAction, protocol::AddProgramActionRequest>,
    changes<AlarmProgramRules, &AlarmProgramRules::removeAction, protocol::DeleteProgramActionRequest>,
};

} // namespace

std::span<const Handler> alarmHandlers() {
    return handlers;
}

} // namespace server
