#include "server/Schema.h"

#include "server/StoreError.h"
#include "server/alarms/AlarmSchema.h"
#include "server/configurations/ConfigurationSchema.h"
#include "server/drivers/DriverSchema.h"
#include "server/inventory/InventorySchema.h"
#include "server/rules/RuleSchema.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Transaction.h>

#include <array>
#include <string>

namespace server {

namespace {

constexpr int applicationId = 0x56746C64; // "Vtld"

constexpr const char* estateTables = R"sql(
    CREATE TABLE region (
        id INTEGER PRIMARY KEY AUTOINCREMENT CHECK (id <= 2147483647),
        kind INTEGER NOT NULL CHECK (kind IN (0, 1)),
        parentId INTEGER,
        name BLOB NOT NULL,
        nameKey BLOB NOT NULL,
        UNIQUE (id, kind),
        FOREIGN KEY (parentId, kind) REFERENCES region (id, kind)
    ) STRICT;
    CREATE UNIQUE INDEX regionByName ON region (kind, ifnull(parentId, 0), nameKey);
    CREATE INDEX regionByParent ON region (parentId, kind);
    CREATE INDEX regionInOrder ON region (kind, nameKey, id);

    CREATE TABLE record (
        number INTEGER PRIMARY KEY,
        ip TEXT NOT NULL,
        fpBoxIp TEXT NOT NULL,
        id TEXT NOT NULL UNIQUE,
        name BLOB NOT NULL,
        location BLOB NOT NULL,
        comment BLOB NOT NULL,
        modelName BLOB NOT NULL,
        modelId TEXT NOT NULL,
        auxId TEXT NOT NULL,
        lprQueueName BLOB NOT NULL,
        port INTEGER NOT NULL,
        regionId INTEGER NOT NULL,
        jobs INTEGER NOT NULL,
        snmpStatus INTEGER NOT NULL,
        printingStatus INTEGER NOT NULL,
        queueState INTEGER NOT NULL,
        recordType INTEGER NOT NULL CHECK (recordType IN (0, 1, 3, 6)),
        auxByte INTEGER NOT NULL,
        auxText BLOB NOT NULL,
        timeToLive INTEGER NOT NULL,
        snmpActive INTEGER NOT NULL,
        localDriverHandling INTEGER NOT NULL,
        localConfigHandling INTEGER NOT NULL,
        snmpIndex INTEGER NOT NULL,
        snmpCommunity BLOB NOT NULL,
        alarmProgramId TEXT NOT NULL,
        mailMessage BLOB NOT NULL,
        invisible INTEGER NOT NULL,
        counterProgramId TEXT NOT NULL,
        accounting INTEGER NOT NULL,
        doNotAutoCreateQueue INTEGER NOT NULL,
        auxKey TEXT NOT NULL,
        regionKind INTEGER NOT NULL CHECK (regionKind = (recordType = 6)),
        nameKey BLOB NOT NULL,
        printerId TEXT REFERENCES record (id) CHECK ((printerId IS NOT NULL) = (recordType = 1)),
        octetOrder INTEGER NOT NULL DEFAULT 0,
        FOREIGN KEY (regionId, regionKind) REFERENCES region (id, kind)
    ) STRICT;
    CREATE UNIQUE INDEX recordByName ON record (regionId, recordType, nameKey);
    CREATE INDEX recordByPrinter ON record (printerId, nameKey) WHERE printerId IS NOT NULL;

    CREATE TABLE account (
        nameKey BLOB PRIMARY KEY,
        name BLOB NOT NULL,
        salt BLOB NOT NULL,
        iterations INTEGER NOT NULL,
        hash BLOB NOT NULL
    ) STRICT;

    CREATE TABLE loginKey (
        onlyOne INTEGER PRIMARY KEY CHECK (onlyOne = 1),
        privateKey BLOB NOT NULL
    ) STRICT;
)sql";

// Each step takes a database from the version that is its index to the next. Steps that have shipped never change.
constexpr std::array steps = {estateTables, driverTables, configurationTables,
                              ruleTables,   alarmTables,  inventoryTables};

int pragma(SQLite::Database& database, const char* name) {
    return database.execAndGet(std::string("PRAGMA ") + name).getInt();
}

bool isEmpty(SQLite::Database& database) {
    return database.execAndGet("SELECT count(*) FROM sqlite_schema").getInt() == 0;
}

} // namespace

void migrate(SQLite::Database& database) {
    SQLite::Transaction transaction(database, SQLite::TransactionBehavior::IMMEDIATE);
    if (pragma(database, "application_id") != applicationId && !isEmpty(database))
        throw StoreError("the database belongs to another program");
    const int version = pragma(database, "user_version");
    constexpr int newest = static_cast<int>(steps.size());
    if (version > newest)
        throw StoreError("the database was written by a newer server (version " + std::to_string(version) +
                         ", this server knows up to " + std::to_string(newest) + ")");
    if (version == newest)
        return;
    for (auto step = static_cast<std::size_t>(version); step < steps.size(); ++step)
        database.exec(steps[step]);
    database.exec("PRAGMA application_id = " + std::to_string(applicationId));
    database.exec("PRAGMA user_version = " + std::to_string(newest));
    transaction.commit();
}

} // namespace server
