#pragma once

#include "server/inventory/NamePattern.h"
#include "server/store/ListQuery.h"

namespace server {

// Finds queues and follow-print queues by name, sorted by name. Throws StoreError.
class QueueSearch {
public:
    // The connection must have NameMatching.
    explicit QueueSearch(sqlite3* connection);

    // Rows of FoundQueueRecord.
    [[nodiscard]] Listing find(const NamePattern& pattern);

private:
    ListQuery all_;
    ListQuery matching_;
};

} // namespace server
