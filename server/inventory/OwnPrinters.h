#pragma once

#include "server/store/Query.h"

#include <string>

namespace server {

// The system's own printers as what stands at an address.
class OwnPrinters {
public:
    explicit OwnPrinters(sqlite3* connection)
        : anyAt_(connection, "SELECT 1 FROM record WHERE recordType = 0 AND ip <> '' AND ip = ? LIMIT 1") {}

    [[nodiscard]] bool anyAt(const std::string& ip) { return anyAt_.run(ip).next(); }

    // In SQL, the number of the own printer that a printer of a report (the alias "entry") is: one at its address, and
    // of several the one of its model, then the one made first.
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
