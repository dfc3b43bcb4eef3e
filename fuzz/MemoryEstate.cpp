#include "fuzz/MemoryEstate.h"

#include "fuzz/Expect.h"
#include "server/SampleEstate.h"
#include "server/Schema.h"

#include <SQLiteCpp/Statement.h>
#include <sqlite3.h>

namespace fuzz {

namespace {

constexpr std::size_t idLength = 36;

SQLite::Database openInMemory() {
    return SQLite::Database(":memory:", SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
}

void copy(sqlite3* from, sqlite3* to) {
    auto* const backup = sqlite3_backup_init(to, "main", from, "main");
    expect(backup != nullptr && sqlite3_backup_step(backup, -1) == SQLITE_DONE);
    expect(sqlite3_backup_finish(backup) == SQLITE_OK);
}

} // namespace

MemoryEstate::MemoryEstate() : pristine_(openInMemory()) {
    auto database = openInMemory();
    database.exec("PRAGMA foreign_keys = ON");
    server::migrate(database, server::schema());
    sqlite_ = database.getHandle();
    connection_ = std::make_unique<server::StoreConnection>(std::move(database));
    connection_->change([&] {
        server::SampleEstate(*connection_).fillSmall();
        return true;
    });
    copy(sqlite_, pristine_.getHandle());
    changes_ = sqlite3_total_changes(sqlite_);
}

void MemoryEstate::restore() {
    expect(sqlite3_get_autocommit(sqlite_) != 0);
    if (sqlite3_total_changes(sqlite_) == changes_) {
        return;
    }
    copy(pristine_.getHandle(), sqlite_);
    changes_ = sqlite3_total_changes(sqlite_);
}

std::vector<std::string> MemoryEstate::ids() {
    std::vector<std::string> found;
    SQLite::Statement columns(pristine_,
                              "SELECT t.name, c.name FROM sqlite_schema AS t, pragma_table_info(t.name) AS c "
                              "WHERE t.type = 'table' AND c.type = 'TEXT' AND c.name = 'id'");
    while (columns.executeStep()) {
        const auto table = columns.getColumn(0).getString();
        SQLite::Statement values(pristine_, "SELECT id FROM " + table + " LIMIT 20");
        while (values.executeStep()) {
            if (auto id = values.getColumn(0).getString(); id.size() <= idLength) {
                found.push_back(std::move(id));
            }
        }
    }
    return found;
}

MemoryEstate& memoryEstate() {
    static MemoryEstate estate;
    return estate;
}

} // namespace fuzz
