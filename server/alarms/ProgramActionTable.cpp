#include "server/alarms/ProgramActionTable.h"

namespace server {

namespace {

std::optional<std::string> recipientOf(const protocol::AddProgramActionRequest& action) {
    return action.destinationId.empty() ? std::nullopt : std::optional(action.destinationId);
}

} // namespace

ProgramActionTable::ProgramActionTable(sqlite3* connection)
    : eventExists_(connection, "SELECT 1 FROM alarmEvent WHERE id = ?"),
      needsRecipient_(connection, "SELECT flag FROM alarmAction WHERE code = ?"),
      exists_(connection, "SELECT 1 FROM programAction WHERE programId = ? AND eventId = ? AND actionCode = ? AND "
                          "ifnull(recipientId, '') = ?"),
      insert_(connection, "INSERT INTO programAction (id, programId, eventId, actionCode, recipientId) "
                          "VALUES (?, ?, ?, ?, ?)"),
      remove_(connection, "DELETE FROM programAction WHERE id = ?"),
      listOfProgram_(connection,
                     "SELECT mine.id, alarmAction.label, alarmEvent.label, ifnull(emailRecipient.name, x'') "
                     "FROM programAction AS mine CROSS JOIN alarmAction ON alarmAction.code = mine.actionCode "
                     "CROSS JOIN alarmEvent ON alarmEvent.id = mine.eventId "
                     "LEFT JOIN emailRecipient ON emailRecipient.id = mine.recipientId "
                     "WHERE mine.programId = ? ORDER BY mine.number"),
      listEvents_(connection, "SELECT id, name FROM alarmEvent ORDER BY number"),
      listActions_(connection, "SELECT code, name, flag FROM alarmAction ORDER BY code"),
      listDestinations_(connection, "SELECT id, name FROM emailRecipient WHERE active = 1 AND "
                                    "EXISTS (SELECT 1 FROM alarmAction WHERE code = ? AND flag = 1) "
                                    "ORDER BY nameKey, number") {}

bool ProgramActionTable::eventExists(const std::string& id) {
    return eventExists_.run(id).next();
}

std::optional<bool> ProgramActionTable::needsRecipient(std::uint16_t actionCode) {
    auto rows = needsRecipient_.run(actionCode);
    return rows.next() ? std::optional(rows.number(0) != 0) : std::nullopt;
}

bool ProgramActionTable::exists(const protocol::AddProgramActionRequest& action) {
    return exists_.run(action.programId, action.eventId, action.actionCode, action.destinationId).next();
}

void ProgramActionTable::insert(const std::string& id, const protocol::AddProgramActionRequest& action) {
    insert_.execute(id, action.programId, action.eventId, action.actionCode, recipientOf(action));
}

bool ProgramActionTable::remove(const std::string& id) {
    return remove_.affects(id);
}

Listing ProgramActionTable::list(const protocol::ListProgramActionsRequest& request) {
    return listOfProgram_.run(request.programId);
}

Listing ProgramActionTable::list(const protocol::ListAlarmEventsRequest&) {
    return listEvents_.run();
}

Listing ProgramActionTable::list(const protocol::ListAlarmActionsRequest&) {
    return listActions_.run();
}

Listing ProgramActionTable::list(const protocol::ListAlarmDestinationsRequest& request) {
    return listDestinations_.run(request.actionCode);
}

} // namespace server
