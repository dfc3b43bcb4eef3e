#pragma once

namespace server {

// The tables of alarm programs and e-mail recipients, and the events, actions and counter programs that every server
// has.
//
// Consoles sort the actions by name and assume that the first one ignores an event, so no name may sort before
// "Ignore". They show the destinations of the list's first action, so the list, which is sorted by code, begins with
// the only action that has any.
inline constexpr const char* alarmTables = R"sql(
    CREATE TABLE emailRecipient (
        number INTEGER PRIMARY KEY,
        id TEXT NOT NULL UNIQUE,
        email BLOB NOT NULL,
        name BLOB NOT NULL,
        active INTEGER NOT NULL CHECK (active IN (0, 1)),
        nameKey BLOB NOT NULL
    ) STRICT;
    CREATE INDEX emailRecipientInOrder ON emailRecipient (nameKey);
    CREATE INDEX activeRecipientInOrder ON emailRecipient (nameKey) WHERE active = 1;

    CREATE TABLE alarmProgram (
        number INTEGER PRIMARY KEY,
        id TEXT NOT NULL UNIQUE,
        kind INTEGER NOT NULL CHECK (kind IN (0, 2)), -- 0 what printers report, 2 how their counters are read
        name BLOB NOT NULL,
        comment BLOB NOT NULL,
        createdBy BLOB NOT NULL,
        creationDate BLOB NOT NULL,
        nameKey BLOB NOT NULL
    ) STRICT;
    CREATE UNIQUE INDEX alarmProgramByName ON alarmProgram (kind, nameKey);
    CREATE INDEX recordByAlarmProgram ON record (alarmProgramId) WHERE alarmProgramId <> '';

    CREATE TABLE alarmEvent (
        number INTEGER PRIMARY KEY,
        id TEXT NOT NULL UNIQUE,
        label TEXT NOT NULL, -- the name where it travels as narrow text
        name BLOB NOT NULL DEFAULT x''
    ) STRICT;

    CREATE TABLE alarmAction (
        code INTEGER PRIMARY KEY,
        label TEXT NOT NULL,
        name BLOB NOT NULL DEFAULT x'',
        flag INTEGER NOT NULL CHECK (flag IN (0, 1)) -- goes to a recipient
    ) STRICT;

    CREATE TABLE programAction (
        number INTEGER PRIMARY KEY,
        id TEXT NOT NULL UNIQUE,
        programId TEXT NOT NULL REFERENCES alarmProgram (id) ON DELETE CASCADE,
        eventId TEXT NOT NULL REFERENCES alarmEvent (id),
        actionCode INTEGER NOT NULL REFERENCES alarmAction (code),
        recipientId TEXT REFERENCES emailRecipient (id) ON DELETE CASCADE
    ) STRICT;
    CREATE INDEX programActionInOrder ON programAction (programId);
    CREATE INDEX programActionByRecipient ON programAction (recipientId) WHERE recipientId IS NOT NULL;
    CREATE UNIQUE INDEX programActionOnce
        ON programAction (programId, eventId, actionCode, ifnull(recipientId, ''));

    INSERT INTO alarmEvent (id, label) VALUES
        ('low-paper', 'Paper is low'), ('low-toner', 'Toner is low'), ('service', 'Service is needed'),
        ('no-paper', 'Paper is out'), ('no-toner', 'Toner is out'), ('offline', 'Printer is offline'),
        ('door-open', 'Door is open'), ('paper-jam', 'Paper jam'), ('no-contact', 'Printer does not answer'),
        ('queue-stopped', 'Queue was stopped'), ('job-failed', 'Job could not be printed');

    INSERT INTO alarmAction (code, label, flag) VALUES
        (1, 'Send e-mail', 1), (2, 'Write to the log', 0), (3, 'Stop the queues', 0), (4, 'Ignore', 0);

    CREATE TEMP TABLE counterProgram (id TEXT, label TEXT);
    INSERT INTO counterProgram VALUES
        ('7c1f6d52-3b0e-4d0c-8a55-1d2e7b9f0c01', 'Pages in total'),
        ('7c1f6d52-3b0e-4d0c-8a55-1d2e7b9f0c02', 'Pages in black and in color'),
        ('7c1f6d52-3b0e-4d0c-8a55-1d2e7b9f0c03', 'Copies, prints and scans');

    -- The names above as UTF-16 units, which for these letters are a letter and a zero; a key has the zero first.
    CREATE TEMP VIEW place (at) AS
        WITH RECURSIVE p (at) AS (VALUES (1) UNION ALL SELECT at + 1 FROM p WHERE at < 40) SELECT at FROM p;
    UPDATE alarmEvent SET name = (SELECT CAST(group_concat(substr(label, at, 1) || char(0), '') AS BLOB)
                                  FROM place WHERE at <= length(label));
    UPDATE alarmAction SET name = (SELECT CAST(group_concat(substr(label, at, 1) || char(0), '') AS BLOB)
                                   FROM place WHERE at <= length(label));
    INSERT INTO alarmProgram (id, kind, name, comment, createdBy, creationDate, nameKey)
        SELECT id, 2,
               (SELECT CAST(group_concat(substr(label, at, 1) || char(0), '') AS BLOB)
                FROM place WHERE at <= length(label)),
               x'', x'', x'',
               (SELECT CAST(group_concat(char(0) || lower(substr(label, at, 1)), '') AS BLOB)
                FROM place WHERE at <= length(label))
        FROM counterProgram;
    DROP VIEW place;
    DROP TABLE counterProgram;
)sql";

// Recomputes the keys of names with the current case folding.
inline constexpr const char* alarmKeys = R"sql(
    UPDATE OR IGNORE emailRecipient SET nameKey = keyOf(name) WHERE nameKey <> keyOf(name);
    UPDATE OR IGNORE alarmProgram SET nameKey = keyOf(name) WHERE nameKey <> keyOf(name);
)sql";

} // namespace server
