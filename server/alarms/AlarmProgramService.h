#pragma once

#include "protocol/alarms/AlarmProgram.h"
#include "protocol/alarms/ProgramAction.h"
#include "server/commands/Change.h"

namespace server {

// Checks and carries out changes of alarm programs and their actions. Each change runs inside the caller's transaction;
// a refused one has changed nothing. Throws StoreError.
class AlarmProgramService {
public:
    explicit AlarmProgramService(StoreConnection& connection) : connection_(connection) {}

    // Without an id it adds a program. With an id and no text at all it deletes the program and its actions; otherwise
    // it changes the program. The reply contains the program's id, empty when the change was refused.
    Outcome<protocol::WriteAlarmProgramReply> write(const protocol::WriteAlarmProgramRequest& request);
    protocol::StatusReply addAction(const protocol::AddProgramActionRequest& request);
    protocol::StatusReply removeAction(const protocol::DeleteProgramActionRequest& request);

private:
    StoreConnection& connection_;
};

} // namespace server
