#pragma once

#include <string>
#include <vector>

namespace SQLite {
class Database;
}

namespace server {

// The tables of a program in SQL, as the steps that create and upgrade them. Steps may use keyOf(name), the nameKey()
// of a text in a column.
struct Schema {
    int applicationId = 0;          // marks the databases of the program
    std::vector<std::string> steps; // each upgrades a database from the version that is its index to the next
};

// Brings a database to the newest version: creates the tables in an empty file, and upgrades an older file. Throws
// StoreError for a file of another program and for one written by a newer server.
void migrate(SQLite::Database& database, const Schema& schema);

} // namespace server
