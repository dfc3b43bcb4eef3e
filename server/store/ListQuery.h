#pragma once

#include "server/store/Query.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace server {

// What a list request selects: how many rows, and the rows. Within one read transaction the two agree.
struct Listing {
    std::int64_t count = 0;
    Rows rows{nullptr};
};

// A SELECT together with the query that counts its rows.
class ListQuery {
public:
    ListQuery(sqlite3* connection, const std::string& select) : ListQuery(connection, withoutOrder(select), select) {}

    // Counts with another SELECT that has as many rows but is cheaper to count.
    ListQuery(sqlite3* connection, const std::string& counted, const std::string& select)
        : count_(connection, "SELECT count(*) FROM (" + counted + ")"), rows_(connection, select) {}

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
    // Without ORDER BY: to count sorted rows SQLite would compute all their columns.
    [[nodiscard]] static std::string withoutOrder(const std::string& select) {
        const auto end = std::min(select.rfind(" ORDER BY "), select.size());
        const auto order = std::string_view(select).substr(end);
        const bool isOfSubquery = std::ranges::count(order, '(') != std::ranges::count(order, ')');
        return isOfSubquery ? select : select.substr(0, end);
    }

    Query count_;
    Query rows_;
};

} // namespace server
