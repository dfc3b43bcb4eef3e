#include "server/store/Migration.h"

#include "server/store/NameKey.h"
#include "server/store/StoreError.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Transaction.h>
#include <sqlite3.h>

#include <cstring>
#include <exception>

namespace server {

namespace {

int pragma(SQLite::Database& database, const char* name) {
    return database.execAndGet(std::string("PRAGMA ") + name).getInt();
}

bool isEmpty(SQLite::Database& database) {
    return database.execAndGet("SELECT count(*) FROM sqlite_schema").getInt() == 0;
}

void keyOf(sqlite3_context* context, int, sqlite3_value** values) {
    try {
        std::u16string name(static_cast<std::size_t>(sqlite3_value_bytes(values[0])) / 2, u'\0');
        if (!name.empty()) {
            std::memcpy(name.data(), sqlite3_value_blob(values[0]), name.size() * 2);
        }
        const auto key = nameKey(name);
        if (key.empty()) {
            sqlite3_result_zeroblob(context, 0); // an empty blob would become NULL
        } else {
            sqlite3_result_blob64(context, key.data(), key.size(), SQLITE_TRANSIENT);
        }
    } catch (const std::exception&) {
        sqlite3_result_error_nomem(context);
    }
}

} // namespace

void migrate(SQLite::Database& database, const Schema& schema) {
    database.createFunction("keyOf", 1, true, nullptr, &keyOf);
    SQLite::Transaction transaction(database, SQLite::TransactionBehavior::IMMEDIATE);
    if (pragma(database, "application_id") != schema.applicationId && !isEmpty(database)) {
        throw StoreError("the database belongs to another program");
    }
    const int version = pragma(database, "user_version");
    const int newest = static_cast<int>(schema.steps.size());
    if (version > newest) {
        throw StoreError("the database was written by a newer server (version " + std::to_string(version) +
                         ", this server knows up to " + std::to_string(newest) + ")");
    }
    if (version == newest) {
        return;
    }
    for (auto step = static_cast<std::size_t>(version); step < schema.steps.size(); ++step) {
        database.exec(schema.steps[step]);
    }
    database.exec("PRAGMA application_id = " + std::to_string(schema.applicationId));
    database.exec("PRAGMA user_version = " + std::to_string(newest));
    transaction.commit();
}

} // namespace server
