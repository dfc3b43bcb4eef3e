#pragma once

#include "server/inventory/NamePattern.h"
#include "server/store/ListQuery.h"

#include <array>

namespace server {

// The printers that a report has found, each with this system's printer, the queue and the migration plan that
// currently belong to it. Rows of InventoryPrinterRecord. Throws StoreError.
class FoundPrinterList {
public:
    // The connection must have NameMatching.
    explicit FoundPrinterList(sqlite3* connection);

    // The kind is one of protocol::foundListKind; any other lists nothing.
    [[nodiscard]] Listing list(std::uint16_t listKind, std::int64_t report);
    // Those for which the pattern matches the field that the list is sorted by.
    [[nodiscard]] Listing filter(std::uint16_t listKind, std::int64_t report, const NamePattern& pattern);

private:
    struct View {
        Query count;
        Query rows;
        View(sqlite3* connection, const std::string& where, const std::string& order);
    };
    struct Kind {
        View all;
        View filtered;
        Kind(sqlite3* connection, bool local, const std::string& order, const std::string& filterBy);
    };

    [[nodiscard]] Kind* kindOf(std::uint16_t listKind);

    std::array<Kind, 5> kinds_;
};

} // namespace server
