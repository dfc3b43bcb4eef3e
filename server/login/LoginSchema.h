#pragma once

namespace server {

// The tables of who may log in, and of the key that logins are sealed with.
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

// Makes the keys of names anew by the present folding of letters.
inline constexpr const char* loginKeys = R"sql(
    UPDATE OR IGNORE account SET nameKey = keyOf(name) WHERE nameKey <> keyOf(name);
)sql";

} // namespace server
