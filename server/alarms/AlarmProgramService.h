#pragma once

#include "protocol/alarms/AlarmProgram.h"
#include "protocol/alarms/ProgramAction.h"
#include "server/commands/Change.h"

namespace server {

// What may be done to alarm programs and their actions, and doing it. Each change runs inside of the caller's
// transaction; a refused one has changed nothing. Throws StoreError.
class AlarmProgramService {
public:
    explicit AlarmProgramService(StoreConnection& connection) : connection_(connection) {}

    // Without an id it adds. With an id and no text at all it deletes, and the program's actions with it; else it
    // changes. The reply has the program's id, an empty one when it was refused.
    Outcome<protocol::WriteAlarmProgramReply> write(const protocol::WriteAlarmProgramRequest& request);
    protocol::StatusReply addAction(const protocol::AddProgramActionRequest& request);
    protocol::StatusReply removeAction(const protocol::DeleteProgramActionRequest& request);

private:
    StoreConnection& connection_;
};

} // namespace server
