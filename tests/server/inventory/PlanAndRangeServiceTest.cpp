#include "tests/server/inventory/InventoryPlace.h"

#include <gtest/gtest.h>

namespace server {
namespace {

using protocol::IpRangeRecord;
using protocol::SchemaRecord;
using test::InventoryPlace;

// A distinct value in each field except the id.
SchemaRecord fullPlan() {
    return {.creator = u"eva",
            .planNumber = -7,
            .newPrinterName = u"Nowhere",
            .newQueueId = {},
            .oldIp = "10.1.0.7",
            .oldPort = "IP_1",
            .oldPrinterName = u"HP 1",
            .oldModelName = u"X5",
            .schemaId = {},
            .schemaName = u"Plan",
            .action = 77,
            .planFlag = true};
}

IpRangeRecord fullRange() {
    return {.rangeId = {},
            .active = true,
            .name = u"Hall",
            .comment = u"c",
            .startIp = u"10.1.0.0",
            .endIp = u"10.1.0.255",
            .rangeValue1 = 65535,
            .creator = u"eva",
            .rangeText1 = u"t1",
            .rangeType = 7,
            .rangeValue2 = -9,
            .rangeText2 = "t2",
            .rangeText3 = u"t3"};
}

TEST(MigrationPlanService, aNewPlanGetsAnIdAndKeepsAllItsFields) {
    InventoryPlace place;
    auto plan = fullPlan();
    plan.schemaId = "mine";
    EXPECT_TRUE(isDone(place.changePlan(protocol::SchemaOperation::create, plan)));
    const auto stored = place.plans().at(0);
    EXPECT_EQ(stored.schemaId.size(), 36U);
    plan.schemaId = stored.schemaId;
    EXPECT_EQ(stored, plan);
}

TEST(MigrationPlanService, anEmptyPlanIsKept) {
    InventoryPlace place;
    EXPECT_TRUE(isDone(place.changePlan(protocol::SchemaOperation::create, {})));
    EXPECT_TRUE(isDone(place.changePlan(protocol::SchemaOperation::create, {})));
    EXPECT_EQ(place.plans().size(), 2U);
}

TEST(MigrationPlanService, anEditReplacesAllFieldsAndADeleteNamesTheIdAlone) {
    InventoryPlace place;
    place.changePlan(protocol::SchemaOperation::create, fullPlan());
    SchemaRecord edited;
    edited.schemaId = place.plans().at(0).schemaId;
    edited.schemaName = u"Other";
    EXPECT_TRUE(isDone(place.changePlan(protocol::SchemaOperation::save, edited)));
    EXPECT_EQ(place.plans(), std::vector{edited});
    SchemaRecord gone;
    gone.schemaId = edited.schemaId;
    EXPECT_TRUE(isDone(place.changePlan(protocol::SchemaOperation::remove, gone)));
    EXPECT_TRUE(place.plans().empty());
}

TEST(MigrationPlanService, aPlanThatIsNotThereIsNeitherSavedNorDeleted) {
    InventoryPlace place;
    auto plan = fullPlan();
    plan.schemaId = "nobody";
    EXPECT_EQ(place.changePlan(protocol::SchemaOperation::save, plan).text,
              u"The migration plan was deleted in the meantime.");
    EXPECT_FALSE(isDone(place.changePlan(protocol::SchemaOperation::remove, plan)));
    EXPECT_TRUE(place.plans().empty());
}

TEST(MigrationPlanService, aPlanThatCouldNotBeSentBackIsRefused) {
    InventoryPlace place;
    place.changePlan(protocol::SchemaOperation::create, fullPlan());
    auto plan = place.plans().at(0);
    plan.oldPort = std::string(65000, 'p');
    plan.schemaName = std::u16string(300, u'n');
    EXPECT_FALSE(isDone(place.changePlan(protocol::SchemaOperation::create, plan)));
    EXPECT_FALSE(isDone(place.changePlan(protocol::SchemaOperation::save, plan)));
    plan.oldPort = "IP_1";
    plan.schemaName = u"Plan";
    EXPECT_EQ(place.plans(), std::vector{plan});
}

TEST(MigrationPlanService, theQueueOfAPlanIsFoundByItsNameWhenOnlyOneHasIt) {
    InventoryPlace place;
    const auto printer = place.addOwn(u"P", "10.1.0.7");
    const auto queue = place.addQueue(u"Color", printer);
    auto plan = fullPlan();
    plan.newPrinterName = u"color";
    place.changePlan(protocol::SchemaOperation::create, plan);
    EXPECT_EQ(place.plans().at(0).newQueueId, queue);
    place.add(3, u"Color", place.record(printer).regionId);
    place.changePlan(protocol::SchemaOperation::create, plan);
    EXPECT_EQ(place.plans().at(1).newQueueId, "");
    plan.newQueueId = queue;
    place.changePlan(protocol::SchemaOperation::create, plan);
    EXPECT_EQ(place.plans().at(2).newQueueId, queue);
}

TEST(MigrationPlanService, aPlanOutlivesItsQueue) {
    InventoryPlace place;
    const auto printer = place.addOwn(u"P", "10.1.0.7");
    auto plan = fullPlan();
    plan.newPrinterName = u"Color";
    plan.newQueueId = place.addQueue(u"Color", printer);
    place.changePlan(protocol::SchemaOperation::create, plan);
    place.recordService().remove({.type = protocol::RecordDeletion::printer, .id = printer});
    const auto orphan = place.plans().at(0);
    EXPECT_EQ(orphan.newQueueId, "");
    EXPECT_EQ(orphan.newPrinterName, u"Color");
    plan.schemaId = orphan.schemaId; // a dialog that was open in the meantime still has the queue's id
    EXPECT_TRUE(isDone(place.changePlan(protocol::SchemaOperation::save, plan)));
    EXPECT_EQ(place.plans(), std::vector{orphan});
}

TEST(MigrationPlanTable, plansAreInTheOrderOfNames) {
    InventoryPlace place;
    for (const auto* const name : {u"b", u"C", u"A"}) {
        SchemaRecord plan;
        plan.schemaName = name;
        place.changePlan(protocol::SchemaOperation::create, plan);
    }
    EXPECT_EQ(test::each(place.plans(), &SchemaRecord::schemaName), (std::vector<std::u16string>{u"A", u"b", u"C"}));
}

TEST(IpRangeService, aNewRangeGetsAnIdAndKeepsAllItsFields) {
    InventoryPlace place;
    auto range = fullRange();
    EXPECT_TRUE(isDone(place.changeRange(protocol::RangeOperation::add, range)));
    range.rangeId = place.ranges().at(0).rangeId;
    EXPECT_EQ(range.rangeId.size(), 36U);
    EXPECT_EQ(place.ranges(), std::vector{range});
}

TEST(IpRangeService, aRangeWithAllFieldsEmptyIsKept) {
    InventoryPlace place;
    EXPECT_TRUE(isDone(place.changeRange(protocol::RangeOperation::add, {})));
    EXPECT_EQ(place.ranges().size(), 1U);
    EXPECT_TRUE(place.connection().table<IpRangeTable>().active().empty());
}

TEST(IpRangeService, anEditReplacesAllFieldsAndADeleteNamesTheIdAlone) {
    InventoryPlace place;
    place.changeRange(protocol::RangeOperation::add, fullRange());
    auto edited = place.ranges().at(0);
    edited.name = u"Roof";
    edited.startIp = u"10.1.0.9";
    EXPECT_TRUE(isDone(place.changeRange(protocol::RangeOperation::save, edited)));
    EXPECT_EQ(place.ranges(), std::vector{edited}); // fields that a dialog does not show are kept
    IpRangeRecord gone;
    gone.rangeId = edited.rangeId;
    EXPECT_TRUE(isDone(place.changeRange(protocol::RangeOperation::remove, gone)));
    EXPECT_TRUE(place.ranges().empty());
}

TEST(IpRangeService, switchingChangesNothingElseAndMayBeRepeated) {
    InventoryPlace place;
    place.changeRange(protocol::RangeOperation::add, fullRange());
    auto expected = place.ranges().at(0);
    IpRangeRecord request;
    request.rangeId = expected.rangeId;
    for (const bool active : {false, false, true, true}) {
        request.active = expected.active = active;
        EXPECT_TRUE(isDone(place.changeRange(protocol::RangeOperation::setActive, request)));
        EXPECT_EQ(place.ranges(), std::vector{expected});
        EXPECT_EQ(place.connection().table<IpRangeTable>().active().size(), active ? 1U : 0U);
    }
}

TEST(IpRangeService, aRangeThatIsNotThereIsNeitherSavedNorDeletedNorSwitched) {
    InventoryPlace place;
    auto range = fullRange();
    range.rangeId = "nobody";
    for (const auto operation :
         {protocol::RangeOperation::save, protocol::RangeOperation::remove, protocol::RangeOperation::setActive}) {
        EXPECT_EQ(place.changeRange(operation, range).text, u"The IP range was deleted in the meantime.");
    }
    EXPECT_TRUE(place.ranges().empty());
}

TEST(IpRangeService, endsThatMakeNoSenseAreRefused) {
    InventoryPlace place;
    place.changeRange(protocol::RangeOperation::add, fullRange());
    const auto stored = place.ranges().at(0);
    const auto refusedWith = [&](const std::u16string& first, const std::u16string& last) {
        auto range = stored;
        range.startIp = first;
        range.endIp = last;
        const auto text = place.changeRange(protocol::RangeOperation::save, range).text;
        EXPECT_EQ(place.changeRange(protocol::RangeOperation::add, range).text, text);
        return text;
    };
    EXPECT_EQ(refusedWith(u"10.1.0.9", u"10.1.0.8"), u"The IP range ends before it begins.");
    EXPECT_EQ(refusedWith(u"10.1", u"10.1.0.8"), u"\"10.1\" is not an address.");
    EXPECT_EQ(refusedWith(u"10.1.0.8", u"the end"), u"\"the end\" is not an address.");
    EXPECT_EQ(refusedWith(u"10.1.0.8", u"fd00::1"), u"The two ends of an IP range must be addresses of one kind.");
    EXPECT_EQ(place.ranges(), std::vector{stored});
}

TEST(IpRangeService, aRangeThatCouldNotBeSentBackIsRefused) {
    InventoryPlace place;
    auto range = fullRange();
    range.rangeText2 = std::string(65000, 't');
    range.comment = std::u16string(300, u'c');
    EXPECT_FALSE(isDone(place.changeRange(protocol::RangeOperation::add, range)));
    EXPECT_TRUE(place.ranges().empty());
}

TEST(IpRangeTable, rangesAreInTheOrderOfTheirFirstAddresses) {
    InventoryPlace place;
    for (const auto* const first : {u"10.1.0.10", u"fd00::1", u"10.1.0.9", u""}) {
        place.addRange(first, u"", 1);
    }
    EXPECT_EQ(test::each(place.ranges(), &IpRangeRecord::startIp),
              (std::vector<std::u16string>{u"", u"10.1.0.9", u"10.1.0.10", u"fd00::1"}));
}

} // namespace
} // namespace server
