#pragma once

#include "server/estate/RecordTable.h"
#include "server/store/StoreConnection.h"

namespace server::test {

// Adds the given number of printers to a region, straight into the table and in one transaction. Their ids and names
// are their numbers, from 0 on.
inline void addManyPrinters(StoreConnection& connection, std::int32_t region, int count,
                            const std::u16string& comment = {}) {
    connection.change([&] {
        protocol::PrinterRecord record;
        record.regionId = region;
        record.comment = comment;
        for (int number = 0; number < count; ++number) {
            record.id = std::to_string(number);
            record.name = std::u16string(record.id.begin(), record.id.end());
            connection.table<RecordTable>().insert({.record = record, .printerId = {}});
        }
        return true;
    });
}

} // namespace server::test
