#include "server/inventory/PlanCover.h"

#include <array>
#include <string_view>

namespace server::planCover {

namespace {

// A plan is found by the first criterion that it names, each of which has an index.
constexpr std::array<std::string_view, 3> waysToFind = {
    "plan.addressKey <> x'' AND plan.addressKey = entry.addressKey",
    "plan.addressKey = x'' AND plan.nameKey <> x'' AND plan.nameKey = entry.nameKey",
    "plan.addressKey = x'' AND plan.nameKey = x'' AND plan.modelKey <> x'' AND plan.modelKey = entry.modelKey"};

constexpr std::string_view restAgrees = " AND plan.nameKey IN (x'', entry.nameKey) AND plan.modelKey IN (x'', "
                                        "entry.modelKey) AND plan.oldPort IN ('', entry.printerPort)";

} // namespace

std::string planOfEntry() {
    std::string sql = "coalesce(";
    for (const auto way : waysToFind) {
        sql.append(way == waysToFind.front() ? "" : ", ");
        sql.append("(SELECT plan.number FROM migrationPlan AS plan WHERE ").append(way).append(restAgrees);
        sql.append(" ORDER BY plan.detail DESC, plan.number DESC LIMIT 1)");
    }
    return sql + ")";
}

std::string coversSomethingInReport() {
    std::string sql = "(";
    for (const auto way : waysToFind) {
        sql.append(way == waysToFind.front() ? "" : " OR ");
        sql.append(
            "EXISTS (SELECT 1 FROM inventoryEntry AS entry WHERE entry.report = ?1 AND entry.local IN (0, 1) AND ");
        sql.append(way).append(restAgrees).append(")");
    }
    return sql + ")";
}

} // namespace server::planCover
