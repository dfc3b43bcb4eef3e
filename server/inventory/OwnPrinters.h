#pragma once

#include "server/store/Query.h"

#include <string>

namespace server {

// Finds this system's own printers by their addresses.
class OwnPrinters {
public:
    explicit OwnPrinters(sqlite3* connection)
        : anyAt_(connection, "SELECT 1 FROM record WHERE recordType = 0 AND ip <> '' AND ip = ? LIMIT 1") {}

    [[nodiscard]] bool anyAt(const std::string& ip) { return anyAt_.run(ip).next(); }

    // An SQL expression for the number of the own printer that is the same device as a printer of a report (the alias
    // "entry"): one at its address; if there are several, one of its model, then the oldest.
    [[nodiscard]] static std::string printerOfEntry() {
        const std::string select =
            "(SELECT own.number FROM record AS own WHERE own.recordType = 0 AND own.ip <> '' AND "
            "own.ip = entry.printerIp";
        const std::string first = " ORDER BY own.number LIMIT 1)";
        return "coalesce(" + select + " AND own.modelName = entry.model" + first + ", " + select + first + ")";
    }

private:
    Query anyAt_;
};

} // namespace server
