#include "bench/WalTable.h"

#include <sqlite3.h>

#include <stdexcept>

namespace bench {

WalTable::WalTable(const std::filesystem::path& file) {
    if (sqlite3_open(file.c_str(), &database_) != SQLITE_OK) {
        throw std::runtime_error("Cannot open " + file.string());
    }
    run("PRAGMA journal_mode = WAL");
    run("PRAGMA synchronous = FULL");
    run("CREATE TABLE anchor (number INTEGER PRIMARY KEY, text TEXT NOT NULL)");
    sqlite3_prepare_v2(database_, "INSERT INTO anchor (text) VALUES (?)", -1, &insert_, nullptr);
}

WalTable::~WalTable() {
    sqlite3_finalize(insert_);
    sqlite3_close(database_);
}

void WalTable::insert(const std::string& text) {
    sqlite3_bind_text(insert_, 1, text.data(), static_cast<int>(text.size()), SQLITE_STATIC);
    const int result = sqlite3_step(insert_);
    sqlite3_reset(insert_);
    if (result != SQLITE_DONE) {
        throw std::runtime_error(sqlite3_errmsg(database_));
    }
}

void WalTable::run(const char* sql) {
    if (sqlite3_exec(database_, sql, nullptr, nullptr, nullptr) != SQLITE_OK) {
        throw std::runtime_error(sqlite3_errmsg(database_));
    }
}

} // namespace bench
