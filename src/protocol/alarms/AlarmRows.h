#pragma once

#include "protocol/CatalogueRow.h"
#include "protocol/alarms/AlarmChoices.h"
#include "protocol/alarms/AlarmProgram.h"
#include "protocol/alarms/EmailRecipient.h"
#include "protocol/alarms/ProgramAction.h"

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
