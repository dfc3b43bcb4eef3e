#pragma once

namespace server {

// The tables of the regions, and of the printers, queues, follow-print queues and local printers in them.
inline constexpr const char* estateTables = R"sql(
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
)sql";

// Recomputes the keys of names with the current case folding.
inline constexpr const char* estateKeys = R"sql(
    UPDATE OR IGNORE region SET nameKey = keyOf(name) WHERE nameKey <> keyOf(name);
    UPDATE OR IGNORE record SET nameKey = keyOf(name) WHERE nameKey <> keyOf(name);
)sql";

} // namespace server
