#pragma once

#include "server/store/Query.h"

#include <sqlite3.h>

#include <string>
#include <vector>

namespace server::test {

// What SQLite reports about the statements of one connection: constructed by Estate::table from the connection of the
// estate.
class QueryPlans {
public:
    explicit QueryPlans(sqlite3* connection) : connection_(connection) {}

    // How a statement is run, one line for each step.
    [[nodiscard]] std::string of(const std::string& sql) const {
        Query query(connection_, "EXPLAIN QUERY PLAN " + sql);
        auto rows = query.run();
        std::string plan;
        while (rows.next()) {
            plan.append(rows.text(3)).append("\n");
        }
        return plan;
    }

    // The statements that the connection has prepared so far and that read.
    [[nodiscard]] std::vector<std::string> readingStatements() const {
        std::vector<std::string> statements;
        for (auto* one = sqlite3_next_stmt(connection_, nullptr); one != nullptr;
             one = sqlite3_next_stmt(connection_, one)) {
            if (std::string sql = sqlite3_sql(one); sql.starts_with("SELECT") || sql.starts_with("WITH")) {
                statements.push_back(std::move(sql));
            }
        }
        return statements;
    }

    // Those that collect and sort all rows before returning the first one, with their plans.
    [[nodiscard]] std::string sortingStatements() const {
        std::string found;
        for (const auto& sql : readingStatements()) {
            if (const auto plan = of(sql); plan.find("TEMP B-TREE") != std::string::npos) {
                found.append(sql).append("\n").append(plan).append("\n");
            }
        }
        return found;
    }

    // How often a statement of the connection has sorted its rows or built a temporary index.
    [[nodiscard]] int sorts() const {
        int sorts = 0;
        for (auto* one = sqlite3_next_stmt(connection_, nullptr); one != nullptr;
             one = sqlite3_next_stmt(connection_, one)) {
            sorts += sqlite3_stmt_status(one, SQLITE_STMTSTATUS_SORT, 0) +
                     sqlite3_stmt_status(one, SQLITE_STMTSTATUS_AUTOINDEX, 0);
        }
        return sorts;
    }

private:
    sqlite3* connection_;
};

} // namespace server::test
