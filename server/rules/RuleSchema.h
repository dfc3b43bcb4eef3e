#pragma once

namespace server {

// The tables of rule groups and entries, page limits, price plans, short ids and user messages.
//
// Whatever an entry, a page limit or a short id refers to may be deleted and leaves them unchanged. None of these
// references is a foreign key: consoles write what they read some time ago, and get no answer that could report a
// refusal.
inline constexpr const char* ruleTables = R"sql(
    CREATE TABLE ruleGroup (
        number INTEGER PRIMARY KEY,
        id TEXT NOT NULL UNIQUE,
        name BLOB NOT NULL,
        comment BLOB NOT NULL,
        extra1 BLOB NOT NULL,
        extra2 BLOB NOT NULL,
        nameKey BLOB NOT NULL
    ) STRICT;
    CREATE INDEX ruleGroupInOrder ON ruleGroup (nameKey);

    CREATE TABLE affected (
        number INTEGER PRIMARY KEY,
        id TEXT NOT NULL UNIQUE,
        type INTEGER NOT NULL CHECK (type IN (1, 2)),
        equals INTEGER NOT NULL CHECK (equals IN (0, 1)),
        name BLOB NOT NULL,
        nameKey BLOB NOT NULL
    ) STRICT;
    CREATE INDEX affectedInOrder ON affected (nameKey);

    -- An entry stands on a rule group, on a printer or queue, or on a region. On none of them it stands on the region 0,
    -- which has no row.
    CREATE TABLE ruleEntry (
        number INTEGER PRIMARY KEY,
        type INTEGER NOT NULL CHECK (type IN (1, 2, 3, 4, 5, 6, 7, 10)),
        id TEXT NOT NULL UNIQUE,
        name BLOB NOT NULL,
        comment BLOB NOT NULL,
        affectedName BLOB NOT NULL,
        targetId TEXT NOT NULL,
        parentId TEXT NOT NULL,
        affectedId TEXT NOT NULL,
        groupId TEXT REFERENCES ruleGroup (id) ON DELETE CASCADE,
        recordId TEXT REFERENCES record (id) ON DELETE CASCADE,
        regionId INTEGER REFERENCES region (id) ON DELETE CASCADE,
        ownerId TEXT NOT NULL GENERATED ALWAYS AS (coalesce(groupId, recordId, '')),
        ownerNumber INTEGER NOT NULL GENERATED ALWAYS AS (ifnull(regionId, 0)),
        CHECK ((groupId IS NOT NULL) + (recordId IS NOT NULL) + (regionId IS NOT NULL) <= 1)
    ) STRICT;
    CREATE INDEX ruleEntryByOwner ON ruleEntry (ownerId, ownerNumber);
    CREATE INDEX ruleEntryByGroup ON ruleEntry (groupId) WHERE groupId IS NOT NULL;
    CREATE INDEX ruleEntryByRecord ON ruleEntry (recordId) WHERE recordId IS NOT NULL;
    CREATE INDEX ruleEntryByRegion ON ruleEntry (regionId) WHERE regionId IS NOT NULL;

    CREATE TABLE pageLimit (
        number INTEGER PRIMARY KEY,
        id TEXT NOT NULL UNIQUE,
        priority INTEGER NOT NULL,
        name BLOB NOT NULL,
        comment BLOB NOT NULL,
        document BLOB NOT NULL,
        format INTEGER NOT NULL,
        color INTEGER NOT NULL,
        duplex INTEGER NOT NULL,
        maxPages INTEGER NOT NULL,
        action INTEGER NOT NULL,
        maxCost REAL NOT NULL,
        messageId TEXT,
        destinationId TEXT NOT NULL,
        enforce INTEGER NOT NULL,
        extraFlag INTEGER NOT NULL,
        extraText1 BLOB NOT NULL,
        extraId TEXT NOT NULL,
        extraText2 BLOB NOT NULL,
        nameKey BLOB NOT NULL
    ) STRICT;
    CREATE INDEX pageLimitInOrder ON pageLimit (nameKey);

    CREATE TABLE pricePlan (
        number INTEGER PRIMARY KEY,
        id TEXT NOT NULL UNIQUE,
        payMethod INTEGER NOT NULL,
        name BLOB NOT NULL,
        comment BLOB NOT NULL,
        defaultPrice REAL NOT NULL,
        colorMultiplier REAL NOT NULL,
        duplexMultiplier REAL NOT NULL,
        copyMultiplier REAL NOT NULL,
        scanMultiplier REAL NOT NULL,
        vat INTEGER NOT NULL,
        nameKey BLOB NOT NULL
    ) STRICT;
    CREATE INDEX pricePlanInOrder ON pricePlan (nameKey);

    CREATE TABLE priceEntry (
        planId TEXT NOT NULL REFERENCES pricePlan (id) ON DELETE CASCADE,
        position INTEGER NOT NULL,
        id TEXT NOT NULL,
        paperName TEXT NOT NULL,
        kind INTEGER NOT NULL,
        paperCode INTEGER NOT NULL,
        basePrice REAL NOT NULL,
        bwSimplex REAL NOT NULL,
        bwDuplex REAL NOT NULL,
        colorSimplex REAL NOT NULL,
        colorDuplex REAL NOT NULL,
        PRIMARY KEY (planId, position)
    ) STRICT, WITHOUT ROWID;

    CREATE TABLE shortId (
        number INTEGER PRIMARY KEY,
        id TEXT NOT NULL UNIQUE,
        name BLOB NOT NULL,
        comment BLOB NOT NULL,
        messageId TEXT,
        validMinutes INTEGER,
        reservedMinutes INTEGER,
        reservedUntil INTEGER,
        nameKey BLOB NOT NULL
    ) STRICT;
    CREATE INDEX shortIdInOrder ON shortId (nameKey);

    CREATE TABLE userMessage (
        number INTEGER PRIMARY KEY,
        id TEXT NOT NULL UNIQUE,
        name BLOB NOT NULL,
        caption BLOB NOT NULL,
        text BLOB NOT NULL,
        icon INTEGER NOT NULL,
        type INTEGER NOT NULL,
        builtIn INTEGER NOT NULL,
        nameKey BLOB NOT NULL
    ) STRICT;
    CREATE INDEX userMessageInOrder ON userMessage (nameKey);

    -- The built-in messages. Their letters are spelled out as the units of a name and as its key, which works for ASCII.
    WITH RECURSIVE
        builtIn (id, name, caption, text, icon, type) AS (VALUES
            ('b1d5c1f0-6a0e-4c6b-9a53-0f5f2f6d0a01', 'Job deleted', 'Print job deleted',
             'Your print job was deleted because it exceeds a limit set by your administrator.', 2, 1),
            ('b1d5c1f0-6a0e-4c6b-9a53-0f5f2f6d0a02', 'Job moved', 'Print job moved',
             'Your print job was moved to another queue. Please ask your administrator where to fetch it.', 3, 2),
            ('b1d5c1f0-6a0e-4c6b-9a53-0f5f2f6d0a03', 'Job paused', 'Print job paused',
             'Your print job waits until somebody releases it.', 1, 2),
            ('b1d5c1f0-6a0e-4c6b-9a53-0f5f2f6d0a04', 'PIN code required', 'PIN code required',
             'Please enter your PIN code at the printer to get your print job.', 3, 1),
            ('b1d5c1f0-6a0e-4c6b-9a53-0f5f2f6d0a05', 'Short id', 'Your print job is ready',
             'Please enter your short id at any printer to get your print job.', 0, 2)),
        spelled (plain, done, units, key) AS (
            SELECT name, 0, '', '' FROM builtIn UNION SELECT caption, 0, '', '' FROM builtIn
                UNION SELECT text, 0, '', '' FROM builtIn
            UNION ALL
            SELECT plain, done + 1, units || substr(plain, done + 1, 1) || char(0),
                   key || char(0) || lower(substr(plain, done + 1, 1))
                FROM spelled WHERE done < length(plain)),
        wide (plain, units, key) AS (
            SELECT plain, CAST(units AS BLOB), CAST(key AS BLOB) FROM spelled WHERE done = length(plain))
    INSERT INTO userMessage (id, name, caption, text, icon, type, builtIn, nameKey)
        SELECT builtIn.id, name.units, caption.units, text.units, builtIn.icon, builtIn.type, 1, name.key
            FROM builtIn
            JOIN wide AS name ON name.plain = builtIn.name
            JOIN wide AS caption ON caption.plain = builtIn.caption
            JOIN wide AS text ON text.plain = builtIn.text
            ORDER BY builtIn.id;
)sql";

// Recomputes the keys of names with the current case folding.
inline constexpr const char* ruleKeys = R"sql(
    UPDATE OR IGNORE ruleGroup SET nameKey = keyOf(name) WHERE nameKey <> keyOf(name);
    UPDATE OR IGNORE affected SET nameKey = keyOf(name) WHERE nameKey <> keyOf(name);
    UPDATE OR IGNORE pageLimit SET nameKey = keyOf(name) WHERE nameKey <> keyOf(name);
    UPDATE OR IGNORE pricePlan SET nameKey = keyOf(name) WHERE nameKey <> keyOf(name);
    UPDATE OR IGNORE shortId SET nameKey = keyOf(name) WHERE nameKey <> keyOf(name);
    UPDATE OR IGNORE userMessage SET nameKey = keyOf(name) WHERE nameKey <> keyOf(name);
)sql";

} // namespace server
