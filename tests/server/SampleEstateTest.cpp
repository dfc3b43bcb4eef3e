#include "server/SampleEstate.h"

#include "server/estate/RecordTable.h"
#include "server/estate/RegionTable.h"
#include "tests/server/support/TestEstate.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace server {
namespace {

using test::TestEstate;

struct Held {
    std::int32_t parent = 0;
    int regions = 0;
    int printers = 0;
};

// What each region of printers and queues holds, by its id.
std::map<std::int32_t, Held> heldByRegions(StoreConnection& connection) {
    std::map<std::int32_t, Held> held;
    auto rows = connection.table<RegionTable>().list(0, 0);
    while (rows.next()) {
        held[static_cast<std::int32_t>(rows.number(1))].parent = static_cast<std::int32_t>(rows.number(2));
    }
    for (auto& [id, region] : held) {
        if (region.parent != 0) {
            ++held.at(region.parent).regions;
        }
        region.printers =
            static_cast<int>(connection.table<RecordTable>().count({.printerId = {}, .regionId = id, .mode = 0}));
    }
    return held;
}

void fill(TestEstate& place, int printers) {
    place.connection().change([&] {
        SampleEstate sample(place.connection());
        if (printers == 0) {
            sample.fillSmall();
        } else {
            sample.fill(printers);
        }
        return true;
    });
}

TEST(SampleEstate, theSmallOneHasRegionsOfEveryKind) {
    TestEstate place;
    fill(place, 0);
    const auto held = heldByRegions(place.connection());
    const auto count = [&](auto test) {
        return std::count_if(held.begin(), held.end(), [&](const auto& entry) { return test(entry.second); });
    };
    EXPECT_GT(count([](const Held& one) { return one.regions > 0 && one.printers == 0; }), 0);
    EXPECT_GT(count([](const Held& one) { return one.regions == 0 && one.printers > 0; }), 0);
    EXPECT_GT(count([](const Held& one) { return one.regions > 0 && one.printers > 0; }), 0);
    EXPECT_GT(count([](const Held& one) { return one.regions == 0 && one.printers == 0; }), 0);
    const auto depth = [&](std::int32_t id) {
        int levels = 0;
        for (; id != 0; id = held.at(id).parent) {
            ++levels;
        }
        return levels;
    };
    int deepest = 0;
    for (const auto& [id, region] : held) {
        deepest = std::max(deepest, depth(id));
    }
    EXPECT_EQ(deepest, 3);
}

TEST(SampleEstate, theSmallOneHasRecordsOfEveryTypeAndState) {
    TestEstate place;
    fill(place, 0);
    auto database = place.store().openDatabase();
    const auto values = [&](const std::string& sql) {
        std::set<std::int64_t> found;
        Query query(database.getHandle(), sql);
        auto rows = query.run();
        while (rows.next()) {
            found.insert(rows.number(0));
        }
        return found;
    };
    EXPECT_EQ(values("SELECT recordType FROM record"), (std::set<std::int64_t>{0, 1, 3, 6}));
    EXPECT_EQ(values("SELECT count(*) FROM record WHERE recordType = 0"), std::set<std::int64_t>{40});
    EXPECT_EQ(values("SELECT snmpStatus FROM record").size(), 10U);
    EXPECT_EQ(values("SELECT printingStatus FROM record").size(), 5U);
    EXPECT_EQ(values("SELECT queueState FROM record").size(), 3U);
    EXPECT_EQ(values("SELECT snmpStatus NOT BETWEEN 48 AND 57 FROM record"), std::set<std::int64_t>{0});
    EXPECT_EQ(values("SELECT count(*) FROM (SELECT printerId FROM record WHERE recordType = 1 GROUP BY printerId)"),
              std::set<std::int64_t>{40});
}

TEST(SampleEstate, itIsTheSameEachTime) {
    TestEstate one;
    TestEstate two;
    fill(one, 0);
    fill(two, 0);
    auto left = one.records().list({.printerId = {}, .regionId = 3, .mode = 0});
    auto right = two.records().list({.printerId = {}, .regionId = 3, .mode = 0});
    while (left.next()) {
        ASSERT_TRUE(right.next());
        EXPECT_EQ(left.text(2), right.text(2));
        EXPECT_EQ(left.wide(5), right.wide(5));
    }
    EXPECT_FALSE(right.next());
}

TEST(SampleEstate, aNumberedOneHasExactlySoManyPrintersAndNoListTooLong) {
    for (const int wanted : {1, 2, 199, 3000}) {
        TestEstate place;
        fill(place, wanted);
        int printers = 0;
        for (const auto& [id, region] : heldByRegions(place.connection())) {
            printers += region.printers;
            EXPECT_LE(region.printers, 10000);
        }
        EXPECT_EQ(printers, wanted);
    }
}

} // namespace
} // namespace server
