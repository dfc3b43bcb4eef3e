#include "server/alarms/AlarmProgramTable.h"

#include "server/store/NameKey.h"
#include "server/store/RecordColumns.h"

namespace server {

using protocol::AlarmProgramRecord;

namespace {

std::string selectPrograms(const char* rest) {
    return "SELECT " + columnNames<AlarmProgramRecord>() + rest;
}

} // namespace

AlarmProgramTable::AlarmProgramTable(sqlite3* connection)
    : find_(connection, selectPrograms(", kind FROM alarmProgram WHERE id = ?")),
      nameTaken_(connection, "SELECT 1 FROM alarmProgram WHERE kind = ? AND nameKey = ? AND id <> ?"),
      insert_(connection, "INSERT INTO alarmProgram (" + columnNames<AlarmProgramRecord>() +
                              ", kind, nameKey) VALUES (" + columnPlaces<AlarmProgramRecord>() + ", ?, ?)"),
      update_(connection,
              "UPDATE alarmProgram SET " + columnAssignments<AlarmProgramRecord>() + ", nameKey = ? WHERE id = ?"),
      forget_(connection, "UPDATE record SET alarmProgramId = '' WHERE alarmProgramId = ? AND alarmProgramId <> ''"),
      remove_(connection, "DELETE FROM alarmProgram WHERE id = ?"),
      pointPrinters_(connection,
                     "WITH program (id, kind, turn, turns) AS (SELECT id, kind, "
                     "row_number() OVER (PARTITION BY kind ORDER BY nameKey) - 1, count(*) OVER (PARTITION BY kind) "
                     "FROM alarmProgram) "
                     "UPDATE record SET "
                     "alarmProgramId = (SELECT id FROM program WHERE kind = 0 AND turn = record.number % turns), "
                     "counterProgramId = (SELECT id FROM program WHERE kind = 2 AND turn = record.number % turns) "
                     "WHERE recordType = 0 AND number % 7 <> 0"),
      listAll_(connection, selectPrograms(" FROM alarmProgram WHERE kind = ? ORDER BY nameKey")),
      listOne_(connection, selectPrograms(" FROM alarmProgram WHERE kind = ? AND id = ?")) {}

std::optional<StoredProgram> AlarmProgramTable::find(const std::string& id) {
    auto rows = find_.run(id);
    if (!rows.next()) {
        return std::nullopt;
    }
    return StoredProgram{.record = readFields<AlarmProgramRecord>(rows),
                         .kind = static_cast<std::uint8_t>(rows.number(columnCount<AlarmProgramRecord>))};
}

bool AlarmProgramTable::nameTaken(std::uint8_t kind, const wire::WideString& name, const std::string& except) {
    return nameTaken_.run(kind, nameKey(name), except).next();
}

void AlarmProgramTable::insert(const StoredProgram& program) {
    int next = bindFields(insert_, program.record);
    insert_.bind(next++, program.kind);
    insert_.bind(next, nameKey(program.record.name));
    insert_.execute();
}

void AlarmProgramTable::update(const AlarmProgramRecord& record) {
    int next = bindFields(update_, record);
    update_.bind(next++, nameKey(record.name));
    update_.bind(next, record.id);
    update_.execute();
}

void AlarmProgramTable::remove(const std::string& id) {
    forget_.execute(id);
    remove_.execute(id);
}

void AlarmProgramTable::pointPrinters() {
    pointPrinters_.execute();
}

Listing AlarmProgramTable::list(const protocol::ListAlarmProgramsRequest& request) {
    return request.filter.empty() ? listAll_.run(request.kind) : listOne_.run(request.kind, request.filter);
}

} // namespace server
