#include "tests/server/rules/RuleEstate.h"

#include <sqlite3.h>

namespace server {
namespace {

using test::RuleEstate;

// How SQLite runs a statement, one line for each step.
std::string planOf(sqlite3* connection, const std::string& sql) {
    Query query(connection, "EXPLAIN QUERY PLAN " + sql);
    auto rows = query.run();
    std::string plan;
    while (rows.next()) {
        plan.append(rows.text(3)).append("\n");
    }
    return plan;
}

TEST(RuleSchema, comeStraightFromAnIndexAndAreNeverSorted) {
    RuleEstate place;
    const auto database = place.store().openDatabase();
    for (const std::string table : {"ruleGroup", "affected", "pageLimit", "pricePlan", "shortId", "userMessage"}) {
        const auto plan = planOf(database.getHandle(), "SELECT * FROM " + table + " ORDER BY nameKey, number");
        EXPECT_EQ(plan, "SCAN " + table + " USING INDEX " + table + "InOrder\n");
    }
    EXPECT_EQ(
        planOf(database.getHandle(), "SELECT * FROM ruleEntry WHERE ownerId = ? AND ownerNumber = ? ORDER BY number"),
        "SEARCH ruleEntry USING INDEX ruleEntryByOwner (ownerId=? AND ownerNumber=?)\n");
    EXPECT_EQ(planOf(database.getHandle(), "SELECT * FROM priceEntry WHERE planId = ? ORDER BY position"),
              "SEARCH priceEntry USING PRIMARY KEY (planId=?)\n");
}

TEST(RuleSchema, aDeletedOwnerFindsItsEntriesByAnIndex) {
    RuleEstate place;
    const auto database = place.store().openDatabase();
    for (const auto& [column, index] : std::initializer_list<std::pair<std::string, std::string>>{
             {"groupId", "ruleEntryByGroup"}, {"recordId", "ruleEntryByRecord"}, {"regionId", "ruleEntryByRegion"}}) {
        EXPECT_EQ(planOf(database.getHandle(), "DELETE FROM ruleEntry WHERE " + column + " = ?"),
                  "SEARCH ruleEntry USING COVERING INDEX " + index + " (" + column + "=?)\n");
    }
}

} // namespace
} // namespace server
