#pragma once

#include "protocol/alarms/AlarmProgram.h"
#include "server/store/ListQuery.h"

namespace server {

// A program as it is stored: the record of the wire, and its kind, one of protocol::alarmProgramKind.
struct StoredProgram {
    protocol::AlarmProgramRecord record;
    std::uint8_t kind = 0;
};

// The alarm programs and counter programs, accessed over one connection to the database without any checks. Throws
// StoreError.
class AlarmProgramTable {
public:
    explicit AlarmProgramTable(sqlite3* connection);

    [[nodiscard]] std::optional<StoredProgram> find(const std::string& id);
    // Whether another program of the kind has the name.
    [[nodiscard]] bool nameTaken(std::uint8_t kind, const wire::WideString& name, const std::string& except);

    void insert(const StoredProgram& program);
    // Updates all fields, by the id.
    void update(const protocol::AlarmProgramRecord& record);
    // Also removes its actions; printers that refer to it then refer to none.
    void remove(const std::string& id);

    // Gives most printers an alarm program and a counter program, alternating among them.
    void pointPrinters();

    // The programs of the kind by name, or the one with the id in the filter.
    [[nodiscard]] Listing list(const protocol::ListAlarmProgramsRequest& request);

private:
    Query find_;
    Query nameTaken_;
    Query insert_;
    Query update_;
    Query forget_;
    Query remove_;
    Query pointPrinters_;
    ListQuery listAll_;
    ListQuery listOne_;
};

} // namespace server
