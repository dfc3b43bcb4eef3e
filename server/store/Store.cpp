#include "server/store/Store.h"

#include "server/store/StoreError.h"

#include <sqlite3.h>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <utility>

namespace server {

namespace {

constexpr int busyMilliseconds = 5000;

StoreError about(const std::filesystem::path& file, const std::string& text) {
    return StoreError(file.string() + ": " + text);
}

void configure(SQLite::Database& database) {
    if (database.execAndGet("PRAGMA journal_mode = WAL").getString() != "wal") {
        throw StoreError("the database cannot keep a write-ahead log here");
    }
    database.exec("PRAGMA synchronous = FULL");
    database.exec("PRAGMA foreign_keys = ON");
    database.exec("PRAGMA trusted_schema = OFF");
}

} // namespace

Store::Store(std::filesystem::path file, const Schema& schema) : file_(std::move(file)) {
    lockFile();
    try {
        auto database = openDatabase();
        migrate(database, schema);
    } catch (const SQLite::Exception& error) {
        ::close(lock_);
        throw about(file_, StoreError::fromCode(error.getErrorCode(), error.what()).what());
    } catch (const StoreError& error) {
        ::close(lock_);
        throw about(file_, error.what());
    }
}

Store::~Store() {
    ::close(lock_);
}

// The lock is on a descriptor that is closed last: closing any descriptor of the file drops the locks that SQLite holds
// on it for this process.
void Store::lockFile() {
    lock_ = ::open(file_.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (lock_ < 0) {
        throw about(file_, std::string("the database cannot be opened: ") + std::strerror(errno));
    }
    struct stat status {};
    const char* reason = nullptr;
    if (::fstat(lock_, &status) != 0 || !S_ISREG(status.st_mode)) {
        reason = "the database must be an ordinary file";
    } else if (::flock(lock_, LOCK_EX | LOCK_NB) != 0) {
        reason = "the database is in use by another vantreld";
    }
    if (reason == nullptr) {
        return;
    }
    ::close(lock_);
    throw about(file_, reason);
}

SQLite::Database Store::openDatabase() const {
    SQLite::Database database(file_.string(), SQLite::OPEN_READWRITE | SQLite::OPEN_NOMUTEX, busyMilliseconds);
    configure(database);
    return database;
}

std::unique_ptr<StoreConnection> Store::openConnection() const {
    try {
        return std::make_unique<StoreConnection>(openDatabase());
    } catch (const SQLite::Exception& error) {
        throw about(file_, StoreError::fromCode(error.getErrorCode(), error.what()).what());
    }
}

} // namespace server
