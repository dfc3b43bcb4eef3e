#pragma once

#include "server/store/StoreConnection.h"

#include <string>
#include <vector>

namespace fuzz {

// The sample estate in memory, in its initial state for every run.
class MemoryEstate {
public:
    MemoryEstate();

    [[nodiscard]] server::StoreConnection& connection() { return *connection_; }

    // Undoes the changes of the last run.
    void restore();

    // All ids of the estate, for requests that name existing records.
    [[nodiscard]] std::vector<std::string> ids();

private:
    SQLite::Database pristine_;
    sqlite3* sqlite_ = nullptr; // of the estate
    std::unique_ptr<server::StoreConnection> connection_;
    int changes_ = 0;
};

// The instance of this program.
[[nodiscard]] MemoryEstate& memoryEstate();

} // namespace fuzz
