#pragma once

#include <cstdint>
#include <span>

struct sqlite3;

namespace server {

// A value that a query hands to a function.
struct SqlValue {
    std::span<const std::uint8_t> bytes;
    bool isText = false;
};

// Says the same of the same values. May throw std::bad_alloc, and nothing else.
using SqlPredicate = bool (*)(const SqlValue& first, const SqlValue& second);

// Lets the queries of a connection call the predicate by that name for as long as the connection lives. Throws
// StoreError.
void addPredicate(sqlite3* connection, const char* name, SqlPredicate predicate);

} // namespace server
