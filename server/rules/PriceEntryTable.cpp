#include "server/rules/PriceEntryTable.h"

#include "server/store/RecordColumns.h"

namespace server {

using protocol::PriceEntryRecord;

PriceEntryTable::PriceEntryTable(sqlite3* connection)
    : clear_(connection, "DELETE FROM priceEntry WHERE planId = ?"),
      insert_(connection, "INSERT INTO priceEntry (" + columnNames<PriceEntryRecord>() +
                              ", planId, position) VALUES (" + columnPlaces<PriceEntryRecord>() + ", ?, ?)"),
      list_(connection,
            "SELECT " + columnNames<PriceEntryRecord>() + " FROM priceEntry WHERE planId = ? ORDER BY position") {}

void PriceEntryTable::replace(const std::string& planId, std::span<const PriceEntryRecord> entries) {
    clear_.execute(planId);
    std::int64_t position = 0;
    for (const auto& entry : entries) {
        const int next = bindFields(insert_, entry);
        insert_.bind(next, planId);
        insert_.bind(next + 1, position++);
        insert_.execute();
    }
}

} // namespace server
