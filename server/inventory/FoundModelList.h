#pragma once

#include "server/store/ListQuery.h"

namespace server {

// The printer models that a report has found, each with what the driver catalogue currently knows about it. Rows of
// InventoryModelRecord, in the order of names. Throws StoreError.
class FoundModelList {
public:
    explicit FoundModelList(sqlite3* connection);

    // The kind is one of protocol::modelListKind; any other lists nothing.
    [[nodiscard]] Listing list(std::uint16_t listKind, std::int64_t report);

private:
    ListQuery all_;
    ListQuery working_;
    ListQuery missing_;
};

} // namespace server
