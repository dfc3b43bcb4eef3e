#pragma once

#include "protocol/CatalogueRow.h"

namespace protocol {

// The commands for alarm programs and e-mail recipients.
inline constexpr Command alarmRows[] = {
    row(23, "ListEmailRecipients", "lists the e-mail recipients").list(ReaderForm::middle).leftOpen(),
    row(24, "WriteEmailRecipient", "adds or changes a recipient").leftOpen(),
    row(25, "SetRecipientActive", "switches a recipient on or off"),
    row(27, "ListAlarmPrograms", "lists the alarm programs").list(ReaderForm::middle).leftOpen().guarded(),
    row(28, "WriteAlarmProgram", "adds or changes a program").single(ReaderForm::plain),
    row(29, "ListAlarmEvents", "lists the alarm events").list(ReaderForm::plain).leftOpen(),
    row(30, "ListAlarmActions", "lists the alarm actions").list(ReaderForm::plain).leftOpen(),
    row(31, "ListAlarmDestinations", "lists the destinations of an alarm").list(ReaderForm::plain).leftOpen(),
    row(32, "ListProgramActions", "lists the actions of a program").list(ReaderForm::plain),
    row(33, "AddProgramAction", "adds an action to a program"),
    row(34, "DeleteProgramAction", "removes an action from a program"),
};

} // namespace protocol
