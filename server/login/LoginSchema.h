#pragma once

namespace server {

// The tables of the accounts, and of the key that logins are sealed with.
inline constexpr const char* loginTables = R"sql(
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

// Recomputes the keys of names with the current case folding.
inline constexpr const char* loginKeys = R"sql(
    UPDATE OR IGNORE account SET nameKey = keyOf(name) WHERE nameKey <> keyOf(name);
)sql";

} // namespace server
