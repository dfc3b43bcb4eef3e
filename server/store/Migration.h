#pragma once

#include <string>
#include <vector>

namespace SQLite {
class Database;
}

namespace server {

// The tables of a program in SQL, told by how a database comes to them. Steps may use keyOf(name), the nameKey() of a
// text in a column.
struct Schema {
    int applicationId = 0;          // which marks the databases of the program
    std::vector<std::string> steps; // each takes a database from the version that is its index to the next
};

// Brings a database to the newest version: makes the tables in an empty file, and takes an older file forward. Throws
// StoreError for a file of another program and for one that a newer server has written.
void migrate(SQLite::Database& database, const Schema& schema);

} // namespace server
