#pragma once

namespace SQLite {
class Database;
}

namespace server {

// Brings a database to the tables that this server works on: makes them in an empty file, and takes an older file
// forward. Throws StoreError for a file of another program and for one that a newer server has written.
void migrate(SQLite::Database& database);

} // namespace server
