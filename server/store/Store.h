#pragma once

#include "server/store/Migration.h"
#include "server/store/StoreConnection.h"

#include <filesystem>
#include <memory>

namespace server {

// The database file of a server, locked against other servers as long as this object lives. Throws StoreError with one
// line for the person who started the server.
class Store {
public:
    // Creates the file if there is none, readable by its owner only, and upgrades an older one.
    Store(std::filesystem::path file, const Schema& schema);
    ~Store();
    Store(const Store&) = delete;
    Store& operator=(const Store&) = delete;

    // A new connection for a thread: the bare database, or with tables.
    [[nodiscard]] SQLite::Database openDatabase() const;
    [[nodiscard]] std::unique_ptr<StoreConnection> openConnection() const;

    [[nodiscard]] const std::filesystem::path& file() const { return file_; }

private:
    void lockFile();

    std::filesystem::path file_;
    int lock_ = -1;
};

} // namespace server
