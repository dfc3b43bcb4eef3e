#include "server/SampleEstate.h"
#include "tests/server/alarms/AlarmEstate.h"

#include <gtest/gtest.h>

#include <set>

namespace server {
namespace {

using test::AlarmEstate;

class AlarmSample : public testing::Test {
protected:
    AlarmSample() {
        place.connection().change([&] {
            SampleEstate(place.connection()).fillSmall();
            return true;
        });
    }
    AlarmEstate place;
};

TEST_F(AlarmSample, fillsEveryList) {
    EXPECT_GE(place.recipients().size(), 10U);
    EXPECT_GE(place.programs().size(), 5U);
    for (const auto& program : place.programs()) {
        EXPECT_FALSE(place.actionsOf(program.id).empty());
    }
    EXPECT_FALSE(place.destinations(1).empty());
}

TEST_F(AlarmSample, hasActiveAndInactiveRecipients) {
    const auto active = std::ranges::count_if(place.recipients(), &protocol::EmailRecipientRecord::active);
    EXPECT_GT(active, 0);
    EXPECT_LT(static_cast<std::size_t>(active), place.recipients().size());
}

TEST_F(AlarmSample, printersPointAtProgramsThatExist) {
    std::set<std::string> known = {""};
    for (const auto kind : std::initializer_list<std::uint8_t>{0, 2}) {
        for (const auto& program : place.programs(kind)) {
            known.insert(program.id);
        }
    }
    std::set<std::string> alarms;
    std::set<std::string> counters;
    auto regions = place.regions().list(0, 0);
    std::vector<std::int32_t> ids;
    while (regions.next()) {
        ids.push_back(static_cast<std::int32_t>(regions.number(1)));
    }
    for (const auto id : ids) {
        auto rows = place.records().list({.printerId = {}, .regionId = id, .mode = 0});
        while (rows.next()) {
            const auto printer = readFields<protocol::PrinterRecord>(rows);
            alarms.insert(printer.alarmProgramId);
            counters.insert(printer.counterProgramId);
        }
    }
    EXPECT_TRUE(std::ranges::includes(known, alarms));
    EXPECT_TRUE(std::ranges::includes(known, counters));
    EXPECT_EQ(alarms.size(), 6U) << "all five and none";
    EXPECT_EQ(counters.size(), 4U) << "all three and none";
}

TEST(AlarmSampleOfMany, growsWithThePrinters) {
    AlarmEstate place;
    place.connection().change([&] {
        SampleEstate(place.connection()).fill(2000);
        return true;
    });
    EXPECT_EQ(place.recipients().size(), 80U);
    EXPECT_EQ(place.programs().size(), 7U);
}

} // namespace
} // namespace server
