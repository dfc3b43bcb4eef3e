#include "bench/Estate.h"

#include "bench/ServerProcess.h"

#include <SQLiteCpp/Database.h>

namespace bench {

Estate::Estate(const std::filesystem::path& folder, int printers)
    : database_(folder / (std::to_string(printers) + ".db")) {
    ServerProcess(database_, {"--sample", std::to_string(printers)}).stop();
    gatherPrinters();
}

void Estate::gatherPrinters() {
    SQLite::Database database(database_.string(), SQLite::OPEN_READWRITE);
    region_ = database.execAndGet("SELECT min(id) FROM region WHERE kind = 0").getInt();
    // Names are unique within a region, but not once the records of many regions are merged into one.
    database.exec("UPDATE record SET regionId = " + std::to_string(region_) +
                  ", nameKey = CAST(nameKey || number AS BLOB) WHERE recordType IN (0, 1)");
    printer_ = database
                   .execAndGet("SELECT id FROM record WHERE recordType = 0 ORDER BY number LIMIT 1 OFFSET "
                               "(SELECT count(*) / 2 FROM record WHERE recordType = 0)")
                   .getString();
}

} // namespace bench
