#pragma once

#include "server/store/StoreConnection.h"

#include <string>
#include <vector>

namespace fuzz {

// The sample estate in memory, as it was at first for every run.
class MemoryEstate {
public:
    MemoryEstate();

    [[nodiscard]] server::StoreConnection& connection() { return *connection_; }

    // Undoes what the last run has changed.
    void restore();

    // All ids that stand in the estate, for those that want to name something that is there.
    [[nodiscard]] std::vector<std::string> ids();

private:
    SQLite::Database pristine_;
    sqlite3* sqlite_ = nullptr; // of the estate
    std::unique_ptr<server::StoreConnection> connection_;
    int changes_ = 0;
};

// The one of this program.
[[nodiscard]] MemoryEstate& memoryEstate();

} // namespace fuzz
