#pragma once

#include "server/Query.h"

namespace server {

// What a list request selects: how many rows, and the rows. Within one read transaction the two agree.
struct Listing {
    std::int64_t count = 0;
    Rows rows{nullptr};
};

// A SELECT of which a list needs both.
class ListQuery {
public:
    ListQuery(sqlite3* connection, const std::string& select)
        : count_(connection, "SELECT count(*) FROM (" + select + ")"), rows_(connection, select) {}

    template <class... Values>
    [[nodiscard]] Listing run(const Values&... values) {
        return {.count = count(values...), .rows = rows_.run(values...)};
    }

    template <class... Values>
    [[nodiscard]] std::int64_t count(const Values&... values) {
        auto rows = count_.run(values...);
        return rows.next() ? rows.number(0) : 0;
    }

private:
    Query count_;
    Query rows_;
};

} // namespace server
