#include "server/alarms/AlarmHandlers.h"

#include "protocol/alarms/AlarmChoices.h"
#include "protocol/alarms/ProgramAction.h"
#include "server/alarms/AlarmProgramService.h"
#include "server/alarms/AlarmProgramTable.h"
#include "server/alarms/EmailRecipientService.h"
#include "server/alarms/EmailRecipientTable.h"
#include "server/alarms/ProgramActionTable.h"

namespace server {

namespace {

template <class Table, class Request>
Listing listOf(StoreConnection& connection, const Request& request) {
    return connection.table<Table>().list(request);
}

template <class Table, class Request, class R>
constexpr Handler listsFrom = lists<Request, R, &listOf<Table, Request>>;

constexpr Handler handlers[] = {
    listsFrom<EmailRecipientTable, protocol::ListEmailRecipientsRequest, protocol::EmailRecipientRecord>,
    changes<EmailRecipientService, &EmailRecipientService::write, protocol::WriteEmailRecipientRequest>,
    changes<EmailRecipientService, &EmailRecipientService::setActive, protocol::SetRecipientActiveRequest>,
    listsFrom<AlarmProgramTable, protocol::ListAlarmProgramsRequest, protocol::AlarmProgramRecord>,
    changesWithReply<AlarmProgramService, &AlarmProgramService::write, protocol::WriteAlarmProgramRequest>,
    listsFrom<ProgramActionTable, protocol::ListAlarmEventsRequest, protocol::AlarmEventRecord>,
    listsFrom<ProgramActionTable, protocol::ListAlarmActionsRequest, protocol::AlarmActionRecord>,
    listsFrom<ProgramActionTable, protocol::ListAlarmDestinationsRequest, protocol::AlarmDestinationRecord>,
    listsFrom<ProgramActionTable, protocol::ListProgramActionsRequest, protocol::ProgramActionRecord>,
    changes<AlarmProgramService, &AlarmProgramService::addAction, protocol::AddProgramActionRequest>,
    changes<AlarmProgramService, &AlarmProgramService::removeAction, protocol::DeleteProgramActionRequest>,
};

} // namespace

std::span<const Handler> alarmHandlers() {
    return handlers;
}

} // namespace server
