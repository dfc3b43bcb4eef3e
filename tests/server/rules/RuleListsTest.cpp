#include "tests/server/rules/RuleEstate.h"
#include "tests/server/support/QueryPlans.h"

namespace server {
namespace {

using test::QueryPlans;
using test::RuleEstate;

TEST(RuleSchema, comeStraightFromAnIndexAndAreNeverSorted) {
    RuleEstate place;
    const auto database = place.store().openDatabase();
    const QueryPlans plans(database.getHandle());
    for (const std::string table : {"ruleGroup", "affected", "pageLimit", "pricePlan", "shortId", "userMessage"}) {
        const auto plan = plans.of("SELECT * FROM " + table + " ORDER BY nameKey, number");
        EXPECT_EQ(plan, "SCAN " + table + " USING INDEX " + table + "InOrder\n");
    }
    EXPECT_EQ(plans.of("SELECT * FROM ruleEntry WHERE ownerId = ? AND ownerNumber = ? ORDER BY number"),
              "SEARCH ruleEntry USING INDEX ruleEntryByOwner (ownerId=? AND ownerNumber=?)\n");
    EXPECT_EQ(plans.of("SELECT * FROM priceEntry WHERE planId = ? ORDER BY position"),
              "SEARCH priceEntry USING PRIMARY KEY (planId=?)\n");
}

TEST(RuleSchema, aDeletedOwnerFindsItsEntriesByAnIndex) {
    RuleEstate place;
    const auto database = place.store().openDatabase();
    const QueryPlans plans(database.getHandle());
    for (const auto& [column, index] : std::initializer_list<std::pair<std::string, std::string>>{
             {"groupId", "ruleEntryByGroup"}, {"recordId", "ruleEntryByRecord"}, {"regionId", "ruleEntryByRegion"}}) {
        EXPECT_EQ(plans.of("DELETE FROM ruleEntry WHERE " + column + " = ?"),
                  "SEARCH ruleEntry USING COVERING INDEX " + index + " (" + column + "=?)\n");
    }
}

} // namespace
} // namespace server
