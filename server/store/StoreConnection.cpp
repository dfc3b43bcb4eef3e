#include "server/store/StoreConnection.h"

#include "server/store/StoreError.h"

#include <sqlite3.h>

#include <utility>

namespace server {

StoreConnection::StoreConnection(SQLite::Database database)
    : database_(std::move(database)),
      begin_(database_.getHandle(), "BEGIN IMMEDIATE"),
      beginRead_(database_.getHandle(), "BEGIN"),
      commit_(database_.getHandle(), "COMMIT"),
      rollback_(database_.getHandle(), "ROLLBACK") {}

void StoreConnection::rollback() noexcept {
    if (sqlite3_get_autocommit(database_.getHandle()) != 0) {
        return; // SQLite has ended the transaction itself
    }
    try {
        rollback_.execute();
    } catch (const StoreError&) {
        // The connection stays in a transaction, and its next begin reports that.
    }
}

} // namespace server
