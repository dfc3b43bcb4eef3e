#include "server/store/StoreError.h"

#include <sqlite3.h>

namespace server {

StoreError StoreError::fromCode(int code, const std::string& detail) {
    switch (code & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return StoreError("the database is locked by another program");
    case SQLITE_READONLY:
        return StoreError("the database is read-only");
    case SQLITE_FULL:
        return StoreError("there is no space left for the database");
    case SQLITE_CANTOPEN:
        return StoreError("the database cannot be opened");
    case SQLITE_NOTADB:
        return StoreError("the file is not a database");
    case SQLITE_CORRUPT:
        return StoreError("the database is damaged");
    case SQLITE_IOERR:
        return StoreError("the database cannot be read or written (" + detail + ")");
    default:
        return StoreError("the database refused: " + detail);
    }
}

} // namespace server
