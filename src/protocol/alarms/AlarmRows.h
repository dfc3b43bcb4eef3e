#pragma once

#include "protocol/CatalogueRow.h"
#include "protocol/alarms/AddProgramActionRequest.h"
#include "protocol/alarms/AlarmActionRecord.h"
#include "protocol/alarms/AlarmDestinationRecord.h"
#include "protocol/alarms/AlarmEventRecord.h"
#include "protocol/alarms/AlarmProgramRecord.h"
#include "protocol/alarms/DeleteProgramActionRequest.h"
#include "protocol/alarms/EmailRecipientRecord.h"
#include "protocol/alarms/ListAlarmActionsRequest.h"
#include "protocol/alarms/ListAlarmDestinationsRequest.h"
#include "protocol/alarms/ListAlarmEventsRequest.h"
#include "protocol/alarms/ListAlarmProgramsRequest.h"
#include "protocol/alarms/ListEmailRecipientsRequest.h"
#include "protocol/alarms/ListProgramActionsRequest.h"
#include "protocol/alarms/ProgramActionRecord.h"
#include "protocol/alarms/SetRecipientActiveRequest.h"
#include "protocol/alarms/WriteAlarmProgramReply.h"
#include "protocol/alarms/WriteAlarmProgramRequest.h"
#include "protocol/alarms/WriteEmailRecipientRequest.h"

namespace protocol {

// The commands for alarm programs and e-mail recipients.
inline constexpr Command alarmRows[] = {
    row(23, "ListEmailRecipients", "lists the e-mail recipients")
        .asks<ListEmailRecipientsRequest>()
        .list<EmailRecipientRecord>(ReaderForm::middle)
        .leftOpen(),
    row(24, "WriteEmailRecipient", "adds, changes or deletes a recipient")
        .asks<WriteEmailRecipientRequest>()
        .leftOpen(),
    row(25, "SetRecipientActive", "switches a recipient on or off").asks<SetRecipientActiveRequest>(),
    row(27, "ListAlarmPrograms", "lists the alarm programs")
        .asks<ListAlarmProgramsRequest>()
        .list<AlarmProgramRecord>(ReaderForm::middle)
        .leftOpen()
        .guarded(),
    row(28, "WriteAlarmProgram", "adds, changes or deletes a program")
        .asks<WriteAlarmProgramRequest>()
        .single<WriteAlarmProgramReply>(ReaderForm::plain),
    row(29, "ListAlarmEvents", "lists the alarm events")
        .asks<ListAlarmEventsRequest>()
        .list<AlarmEventRecord>(ReaderForm::plain)
        .leftOpen(),
    row(30, "ListAlarmActions", "lists the alarm actions")
        .asks<ListAlarmActionsRequest>()
        .list<AlarmActionRecord>(ReaderForm::plain)
        .leftOpen(),
    row(31, "ListAlarmDestinations", "lists the destinations of an alarm")
        .asks<ListAlarmDestinationsRequest>()
        .list<AlarmDestinationRecord>(ReaderForm::plain)
        .leftOpen(),
    row(32, "ListProgramActions", "lists the actions of a program")
        .asks<ListProgramActionsRequest>()
        .list<ProgramActionRecord>(ReaderForm::plain),
    row(33, "AddProgramAction", "adds an action to a program").asks<AddProgramActionRequest>(),
    row(34, "DeleteProgramAction", "removes an action from a program").asks<DeleteProgramActionRequest>(),
};

} // namespace protocol
