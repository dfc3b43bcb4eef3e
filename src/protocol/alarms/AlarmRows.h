#pragma once

#include "protocol/CatalogueRow.h"
#include "protocol/alarms/AlarmChoices.h"
#include "protocol/alarms/AlarmProgram.h"
#include "protocol/alarms/EmailRecipient.h"
#include "protocol/alarms/ProgramAction.h"

namespace protocol {

// The commands for alarm programs and e-mail recipients.
inline constexpr Command alarmRows[] = {
    row<ListEmailRecipientsRequest>("lists the e-mail recipients")
        .list<EmailRecipientRecord>(ReaderForm::middle)
        .leftOpen(),
    row<WriteEmailRecipientRequest>("adds, changes or deletes a recipient").leftOpen(),
    row<SetRecipientActiveRequest>("switches a recipient on or off"),
    row<ListAlarmProgramsRequest>("lists the alarm programs")
        .list<AlarmProgramRecord>(ReaderForm::middle)
        .leftOpen()
        .guarded(),
    row<WriteAlarmProgramRequest>("adds, changes or deletes a program")
        .single<WriteAlarmProgramReply>(ReaderForm::plain),
    row<ListAlarmEventsRequest>("lists the alarm events").list<AlarmEventRecord>(ReaderForm::plain).leftOpen(),
    row<ListAlarmActionsRequest>("lists the alarm actions").list<AlarmActionRecord>(ReaderForm::plain).leftOpen(),
    row<ListAlarmDestinationsRequest>("lists the destinations of an alarm")
        .list<AlarmDestinationRecord>(ReaderForm::plain)
        .leftOpen(),
    row<ListProgramActionsRequest>("lists the actions of a program").list<ProgramActionRecord>(ReaderForm::plain),
    row<AddProgramActionRequest>("adds an action to a program"),
    row<DeleteProgramActionRequest>("removes an action from a program"),
};

} // namespace protocol
