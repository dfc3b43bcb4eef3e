#pragma once

namespace server {

// The tables of the old estate, of inventory reports and their findings, of migration plans and of IP ranges. Texts of
// the old estate are limited, so that a found printer and the names shown with it always fit into one frame.
inline constexpr const char* inventoryTables = R"sql(
    CREATE TABLE oldWorkstation (
        number INTEGER PRIMARY KEY,
        name BLOB NOT NULL CHECK (length(name) <= 4000),
        ip TEXT NOT NULL,
        lastSeen TEXT NOT NULL
    ) STRICT;

    CREATE TABLE oldServer (
        number INTEGER PRIMARY KEY,
        name BLOB NOT NULL CHECK (length(name) <= 4000),
        ip TEXT NOT NULL,
        lastSeen TEXT NOT NULL
    ) STRICT;

    CREATE TABLE oldPrinter (
        number INTEGER PRIMARY KEY,
        workstation INTEGER REFERENCES oldWorkstation (number) ON DELETE CASCADE,
        server INTEGER REFERENCES oldServer (number) ON DELETE CASCADE,
        windowsName BLOB NOT NULL CHECK (length(windowsName) <= 4000),
        ip TEXT NOT NULL CHECK (length(ip) <= 500),
        port TEXT NOT NULL CHECK (length(port) <= 500),
        model BLOB NOT NULL CHECK (length(model) <= 4000),
        location BLOB NOT NULL CHECK (length(location) <= 4000),
        comment BLOB NOT NULL CHECK (length(comment) <= 4000),
        local INTEGER NOT NULL CHECK (local IN (0, 1)),
        shared INTEGER NOT NULL CHECK (shared IN (0, 1)),
        lastSeen TEXT NOT NULL,
        CHECK ((workstation IS NULL) <> (server IS NULL))
    ) STRICT;
    CREATE INDEX oldPrinterByWorkstation ON oldPrinter (workstation) WHERE workstation IS NOT NULL;
    CREATE INDEX oldPrinterByServer ON oldPrinter (server) WHERE server IS NOT NULL;

    CREATE TABLE oldUse (
        printer INTEGER NOT NULL REFERENCES oldPrinter (number) ON DELETE CASCADE,
        workstation INTEGER NOT NULL REFERENCES oldWorkstation (number) ON DELETE CASCADE,
        PRIMARY KEY (printer, workstation)
    ) STRICT, WITHOUT ROWID;
    CREATE INDEX oldUseByWorkstation ON oldUse (workstation);

    CREATE TABLE inventoryReport (
        number INTEGER PRIMARY KEY AUTOINCREMENT,
        reportId TEXT NOT NULL UNIQUE,
        reportDate BLOB NOT NULL,
        reportUser BLOB NOT NULL,
        reportName BLOB NOT NULL,
        comment BLOB NOT NULL,
        ipScope BLOB NOT NULL,
        reportType INTEGER NOT NULL,
        dateFrom TEXT NOT NULL,
        dateTo TEXT NOT NULL
    ) STRICT;

    CREATE TABLE inventoryEntry (
        number INTEGER PRIMARY KEY,
        report INTEGER NOT NULL REFERENCES inventoryReport (number) ON DELETE CASCADE,
        entryId TEXT NOT NULL,
        local INTEGER NOT NULL CHECK (local IN (0, 1)),
        windowsName BLOB NOT NULL,
        nameKey BLOB NOT NULL,
        printerIp TEXT NOT NULL,
        addressKey BLOB NOT NULL,
        printerPort TEXT NOT NULL,
        location BLOB NOT NULL,
        comment BLOB NOT NULL,
        clientCount INTEGER NOT NULL,
        model BLOB NOT NULL,
        modelKey BLOB NOT NULL,
        workstation BLOB NOT NULL,
        workstationKey BLOB NOT NULL,
        rangeType INTEGER
    ) STRICT;
    CREATE INDEX inventoryEntryByAddress ON inventoryEntry (report, local, addressKey, nameKey);
    CREATE INDEX inventoryEntryByName ON inventoryEntry (report, local, nameKey);
    CREATE INDEX inventoryEntryByModel ON inventoryEntry (report, local, modelKey, nameKey);
    CREATE INDEX inventoryEntryByWorkstation ON inventoryEntry (report, workstationKey, nameKey) WHERE local = 1;

    CREATE TABLE inventoryModel (
        report INTEGER NOT NULL REFERENCES inventoryReport (number) ON DELETE CASCADE,
        modelKey BLOB NOT NULL,
        modelName BLOB NOT NULL,
        queueCount INTEGER NOT NULL,
        clientCount INTEGER NOT NULL,
        PRIMARY KEY (report, modelKey)
    ) STRICT, WITHOUT ROWID;

    -- The three keys hold what of the old printer the plan names, and detail in how many ways it names it.
    CREATE TABLE migrationPlan (
        number INTEGER PRIMARY KEY AUTOINCREMENT,
        creator BLOB NOT NULL,
        planNumber INTEGER NOT NULL,
        newPrinterName BLOB NOT NULL,
        newQueueId TEXT REFERENCES record (id) ON DELETE SET NULL,
        oldIp TEXT NOT NULL,
        oldPort TEXT NOT NULL,
        oldPrinterName BLOB NOT NULL,
        oldModelName BLOB NOT NULL,
        schemaId TEXT NOT NULL UNIQUE,
        schemaName BLOB NOT NULL,
        action INTEGER NOT NULL,
        planFlag INTEGER NOT NULL CHECK (planFlag IN (0, 1)),
        schemaKey BLOB NOT NULL,
        addressKey BLOB NOT NULL,
        nameKey BLOB NOT NULL,
        modelKey BLOB NOT NULL,
        detail INTEGER NOT NULL
    ) STRICT;
    CREATE INDEX migrationPlanInOrder ON migrationPlan (schemaKey);
    CREATE INDEX migrationPlanByQueue ON migrationPlan (newQueueId) WHERE newQueueId IS NOT NULL;
    CREATE INDEX migrationPlanByAddress ON migrationPlan (addressKey, detail) WHERE addressKey <> x'';
    CREATE INDEX migrationPlanByName ON migrationPlan (nameKey, detail) WHERE addressKey = x'' AND nameKey <> x'';
    CREATE INDEX migrationPlanByModel ON migrationPlan (modelKey, detail)
        WHERE addressKey = x'' AND nameKey = x'' AND modelKey <> x'';

    CREATE TABLE ipRange (
        number INTEGER PRIMARY KEY AUTOINCREMENT,
        rangeId TEXT NOT NULL UNIQUE,
        active INTEGER NOT NULL CHECK (active IN (0, 1)),
        name BLOB NOT NULL,
        comment BLOB NOT NULL,
        startIp BLOB NOT NULL,
        endIp BLOB NOT NULL,
        rangeValue1 INTEGER NOT NULL,
        creator BLOB NOT NULL,
        rangeText1 BLOB NOT NULL,
        rangeType INTEGER NOT NULL,
        rangeValue2 INTEGER NOT NULL,
        rangeText2 TEXT NOT NULL,
        rangeText3 BLOB NOT NULL,
        nameKey BLOB NOT NULL,
        startKey BLOB NOT NULL,
        endKey BLOB NOT NULL
    ) STRICT;
    CREATE INDEX ipRangeInOrder ON ipRange (startKey, nameKey);

    CREATE INDEX printerByAddress ON record (ip) WHERE recordType = 0 AND ip <> '';
    CREATE INDEX queueInOrder ON record (nameKey) WHERE recordType IN (1, 3);
    CREATE INDEX driverModelByName ON driverModel (nameKey);
)sql";

// Recomputes the keys of names with the current case folding.
inline constexpr const char* inventoryKeys = R"sql(
    UPDATE OR IGNORE inventoryEntry SET nameKey = keyOf(windowsName) WHERE nameKey <> keyOf(windowsName);
    UPDATE OR IGNORE inventoryEntry SET modelKey = keyOf(model) WHERE modelKey <> keyOf(model);
    UPDATE OR IGNORE inventoryEntry SET workstationKey = keyOf(workstation) WHERE workstationKey <> keyOf(workstation);
    UPDATE OR IGNORE inventoryModel SET modelKey = keyOf(modelName) WHERE modelKey <> keyOf(modelName);
    UPDATE OR IGNORE migrationPlan SET schemaKey = keyOf(schemaName) WHERE schemaKey <> keyOf(schemaName);
    UPDATE OR IGNORE migrationPlan SET nameKey = keyOf(oldPrinterName) WHERE nameKey <> keyOf(oldPrinterName);
    UPDATE OR IGNORE migrationPlan SET modelKey = keyOf(oldModelName) WHERE modelKey <> keyOf(oldModelName);
    UPDATE OR IGNORE ipRange SET nameKey = keyOf(name) WHERE nameKey <> keyOf(name);
)sql";

} // namespace server
