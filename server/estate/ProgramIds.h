#pragma once

#include "server/store/Query.h"

#include <cstdint>
#include <string>

namespace server {

// Which alarm programs and counter programs exist, for the printers and queues that refer to them.
class ProgramIds {
public:
    explicit ProgramIds(sqlite3* connection)
        : find_(connection, "SELECT 1 FROM alarmProgram WHERE id = ? AND kind = ?") {}

    // The kind is one of protocol::alarmProgramKind.
    [[nodiscard]] bool has(const std::string& id, std::uint8_t kind) { return find_.run(id, kind).next(); }

private:
    Query find_;
};

} // namespace server
