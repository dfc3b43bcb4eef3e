#pragma once

#include <filesystem>
#include <string>

struct sqlite3;
struct sqlite3_stmt;

namespace bench {

// A bare SQLite table in WAL mode with full sync: the baseline for a change that survives a crash.
class WalTable {
public:
    explicit WalTable(const std::filesystem::path& file);
    ~WalTable();
    WalTable(const WalTable&) = delete;
    WalTable& operator=(const WalTable&) = delete;

    // One row in a transaction of its own.
    void insert(const std::string& text);

private:
    void run(const char* sql);

    sqlite3* database_ = nullptr;
    sqlite3_stmt* insert_ = nullptr;
};

} // namespace bench
