#pragma once

#include "protocol/rules/PricePlan.h"
#include "server/store/ListQuery.h"

#include <span>

namespace server {

// The prices of each plan, in the order in which its console sent them. They are deleted with their plan. Throws
// StoreError.
class PriceEntryTable {
public:
    explicit PriceEntryTable(sqlite3* connection);

    // Replaces the entries of an existing plan.
    void replace(const std::string& planId, std::span<const protocol::PriceEntryRecord> entries);
    [[nodiscard]] Listing list(const std::string& planId) { return list_.run(planId); }

private:
    Query clear_;
    Query insert_;
    ListQuery list_;
};

} // namespace server
