#include "protocol/rules/PaperCode.h"
#include "server/SampleEstate.h"
#include "tests/server/rules/RuleEstate.h"
#include "wire/Text.h"

#include <map>
#include <set>
#include <span>

namespace server {
namespace {

using test::RuleEstate;
namespace entryType = protocol::ruleEntryType;

class RuleSample : public testing::Test {
protected:
    RuleSample() {
        place.connection().change([&] {
            SampleEstate(place.connection()).fillSmall();
            return true;
        });
    }

    template <class Value>
    std::set<Value> values(const std::string& sql) {
        auto database = place.store().openDatabase();
        Query query(database.getHandle(), sql);
        auto rows = query.run();
        std::set<Value> found;
        while (rows.next()) {
            found.insert(static_cast<Value>(rows.number(0)));
        }
        return found;
    }

    RuleEstate place;
};

TEST_F(RuleSample, hasSomethingInEveryList) {
    EXPECT_GE(place.all<protocol::RuleGroupRecord>().size(), 5U);
    EXPECT_GE(place.all<protocol::AffectedRecord>().size(), 15U);
    EXPECT_GE(place.all<protocol::PageLimitRecord>().size(), 5U);
    EXPECT_GE(place.all<protocol::PricePlanRecord>().size(), 5U);
    EXPECT_GE(place.all<protocol::ShortIdRecord>().size(), 5U);
    EXPECT_GE(place.all<protocol::UserMessageRecord>().size(), 9U);
    EXPECT_EQ(place.entries("", 0).size(), 2U);
}

TEST_F(RuleSample, hasEveryTypeOfEntryAndEveryKindOfOwner) {
    EXPECT_EQ(values<int>("SELECT type FROM ruleEntry"), (std::set<int>{1, 2, 3, 4, 5, 6, 7, 10}));
    EXPECT_EQ(values<int>("SELECT DISTINCT recordType FROM ruleEntry JOIN record ON record.id = recordId").size(), 4U);
    EXPECT_EQ(values<int>("SELECT count(*) > 0 FROM ruleEntry WHERE groupId IS NOT NULL"), std::set<int>{1});
    EXPECT_EQ(values<int>("SELECT count(DISTINCT regionId) = (SELECT count(*) FROM region) FROM ruleEntry"),
              std::set<int>{1});
}

TEST_F(RuleSample, whatAnEntryPointsAtIsThere) {
    std::set<std::string> targets;
    for (const auto& group : place.all<protocol::RuleGroupRecord>()) {
        targets.insert(group.id);
    }
    for (const auto& limit : place.all<protocol::PageLimitRecord>()) {
        targets.insert(limit.id);
    }
    for (const auto& plan : place.all<protocol::PricePlanRecord>()) {
        targets.insert(plan.id);
    }
    for (const auto& shortId : place.all<protocol::ShortIdRecord>()) {
        targets.insert(wire::toText(shortId.id));
    }
    for (const auto& entry : place.entries("", 1)) {
        const bool points = entry.type <= entryType::pricePlan || entry.type == entryType::shortId;
        EXPECT_EQ(targets.contains(entry.targetId), points) << int{entry.type};
    }
}

TEST_F(RuleSample, hasPricesOfPapersAndOfAreas) {
    EXPECT_EQ(values<int>("SELECT kind FROM priceEntry"), (std::set<int>{0, 1, 2, 3, 5, 6}));
    EXPECT_EQ(values<int>("SELECT payMethod FROM pricePlan"), (std::set<int>{0, 1, 2, 3}));
    EXPECT_EQ(values<int>("SELECT action FROM pageLimit"), (std::set<int>{0, 2, 3, 4, 5, 6}));
    EXPECT_EQ(values<int>("SELECT type FROM userMessage"), (std::set<int>{1, 2, 3}));
}

TEST_F(RuleSample, pricesAreLabelledAsTheirPaperOrArea) {
    std::map<std::uint16_t, std::string> labels;
    for (const auto& list : {std::span<const protocol::PaperCode>(protocol::paperSizes),
                             std::span<const protocol::PaperCode>(protocol::areaUnits)}) {
        for (const auto& [code, label] : list) {
            labels[code] = wire::toUtf8(label);
        }
    }
    for (const auto& plan : place.all<protocol::PricePlanRecord>()) {
        for (const auto& price : place.prices(plan.id)) {
            EXPECT_EQ(price.paperName, labels[price.paperCode]);
        }
    }
}

TEST_F(RuleSample, passesTheChecksThatConsolesHaveToPass) {
    for (const auto& plan : place.all<protocol::PricePlanRecord>()) {
        const auto entries = place.prices(plan.id);
        EXPECT_TRUE(isDone(place.service<PricePlanService>().write({.action = 2, .plan = plan, .entries = entries})));
    }
    for (const auto& limit : place.all<protocol::PageLimitRecord>()) {
        EXPECT_TRUE(isDone(place.service<PageLimitService>().write({.action = 2, .limit = limit})));
    }
    for (const auto& shortId : place.all<protocol::ShortIdRecord>()) {
        EXPECT_TRUE(isDone(place.service<ShortIdService>().update({.shortId = shortId})));
    }
    for (const auto& message : place.all<protocol::UserMessageRecord>()) {
        EXPECT_TRUE(isDone(place.service<UserMessageService>().write({.action = 2, .message = message})));
    }
    for (const auto& entry : place.entries("", 0)) {
        EXPECT_TRUE(isDone(place.service<RuleEntryService>().update({.entry = entry})));
    }
}

} // namespace
} // namespace server
