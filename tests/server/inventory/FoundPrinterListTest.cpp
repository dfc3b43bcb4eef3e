#include "server/inventory/FoundPrinterList.h"

#include "server/store/NameKey.h"

#include "tests/server/inventory/InventoryPlace.h"

#include <gtest/gtest.h>

namespace server {
namespace {

using protocol::InventoryPrinterRecord;
using protocol::SchemaRecord;
using test::InventoryPlace;
using Names = std::vector<std::u16string>;

SchemaRecord plan(const std::u16string& name, const std::string& ip, const std::u16string& printer = {},
                  const std::u16string& model = {}, const std::string& port = {}) {
    SchemaRecord record;
    record.schemaName = name;
    record.oldIp = ip;
    record.oldPrinterName = printer;
    record.oldModelName = model;
    record.oldPort = port;
    record.action = 2;
    return record;
}

TEST(FoundPrinterList, eachKindHasItsPrintersInItsOrder) {
    InventoryPlace place;
    place.addShared(u"b", "10.1.0.9", u"M1");
    place.addShared(u"A", "10.1.0.10", u"m2");
    place.addShared(u"c", "10.1.0.11", u"M1");
    place.addLocal(u"y", u"PC-2", "10.8.0.2", u"I1");
    place.addLocal(u"x", u"pc-3", "10.8.0.3", u"I1");
    place.addLocal(u"z", u"PC-1", "10.8.0.1", u"i2");
    const auto report = place.report();
    EXPECT_EQ(place.foundNames(report, 0), (Names{u"b", u"A", u"c"}));
    EXPECT_EQ(place.foundNames(report, 1), (Names{u"b", u"c", u"A"}));
    EXPECT_EQ(place.foundNames(report, 2), (Names{u"A", u"b", u"c"}));
    EXPECT_EQ(place.foundNames(report, 3), (Names{u"z", u"y", u"x"}));
    EXPECT_EQ(place.foundNames(report, 4), (Names{u"x", u"y", u"z"}));
    for (const std::uint16_t kind : {std::uint16_t{5}, std::uint16_t{65535}}) {
        EXPECT_EQ(place.foundNames(report, kind), Names{});
    }
    EXPECT_EQ(place.foundNames("nobody", 0), Names{});
}

TEST(FoundPrinterList, aFilterTakesWhatTheListIsOrderedBy) {
    InventoryPlace place;
    place.addShared(u"Halvek old", "10.1.0.9", u"Mirado");
    place.addShared(u"Mirado old", "10.2.0.9", u"Halvek");
    place.addLocal(u"usb", u"PC-1", "10.8.0.1", u"Halvek");
    place.addLocal(u"lpt", u"PC-22", "10.8.0.2", u"Mirado");
    const auto number = place.numberOf(place.report());
    static_cast<void>(place.connection().table<NameMatching>());
    const auto filtered = [&](std::uint16_t kind, std::u16string_view text) {
        return test::each(test::recordsOf<InventoryPrinterRecord>(
                              place.connection().table<FoundPrinterList>().filter(kind, number, NamePattern(text))),
                          &InventoryPrinterRecord::windowsName);
    };
    EXPECT_EQ(filtered(0, u"10.1."), Names{u"Halvek old"});
    EXPECT_EQ(filtered(0, u"10.?.0.9"), (Names{u"Halvek old", u"Mirado old"}));
    EXPECT_EQ(filtered(1, u"halvek"), Names{u"Mirado old"});
    EXPECT_EQ(filtered(2, u"halvek"), Names{u"Halvek old"});
    EXPECT_EQ(filtered(3, u"pc-2"), Names{u"lpt"});
    EXPECT_EQ(filtered(4, u"halvek"), Names{u"usb"});
    EXPECT_EQ(filtered(0, u""), (Names{u"Halvek old", u"Mirado old"}));
    EXPECT_EQ(filtered(5, u""), Names{});
}

TEST(FoundPrinterList, anOwnPrinterAtTheAddressIsMappedWithItsFirstQueue) {
    InventoryPlace place;
    place.addShared(u"old", "10.1.0.7");
    const auto report = place.report();
    EXPECT_EQ(place.found(report).at(0).mappedPrinterId, "");
    const auto printer = place.addOwn(u"P", "10.1.0.7");
    EXPECT_EQ(place.found(report).at(0).mappedPrinterName, u"P"); // made later, and still shown
    EXPECT_EQ(place.found(report).at(0).mappedPrinterId, printer);
    EXPECT_EQ(place.found(report).at(0).mappedQueueId, "");
    place.addQueue(u"second", printer);
    const auto queue = place.addQueue(u"First", printer);
    EXPECT_EQ(place.found(report).at(0).mappedQueueName, u"First");
    EXPECT_EQ(place.found(report).at(0).mappedQueueId, queue);
    place.recordService().remove({.type = protocol::RecordDeletion::printer, .id = printer});
    EXPECT_EQ(place.found(report).at(0).mappedPrinterName, u"");
    EXPECT_EQ(place.found(report).at(0).mappedQueueName, u"");
}

TEST(FoundPrinterList, ofSeveralOwnPrintersAtAnAddressTheOneOfTheModelIsMapped) {
    InventoryPlace place;
    place.addShared(u"old", "10.1.0.7", u"X5");
    place.addShared(u"older", "10.1.0.7", u"X6");
    place.addOwn(u"First", "10.1.0.7", u"Other");
    place.addOwn(u"Same", "10.1.0.7", u"X5");
    const auto found = place.found(place.report());
    EXPECT_EQ(found.at(0).mappedPrinterName, u"Same");
    EXPECT_EQ(found.at(1).mappedPrinterName, u"First");
}

TEST(FoundPrinterList, aPrinterWithoutAnAddressIsMappedToNone) {
    InventoryPlace place;
    place.addLocal(u"usb", u"PC-1", "10.1.0.7");
    place.addOwn(u"P", "");
    place.addOwn(u"Q", "10.1.0.7");
    EXPECT_EQ(place.found(place.report(), 3).at(0).mappedPrinterName, u"");
}

TEST(FoundPrinterList, aPlanShowsAsSoonAsItIsMadeAndNoLongerThanItIsThere) {
    InventoryPlace place;
    place.addShared(u"old", "10.1.0.7");
    const auto report = place.report();
    for (const auto& [action, text] : std::vector<std::pair<std::int32_t, std::u16string>>{
             {1, u"Ignore"}, {2, u"Reinstall"}, {3, u"Delete"}, {0, u""}, {4, u""}}) {
        auto made = plan(u"Plan", "10.1.0.7");
        made.action = action;
        place.changePlan(protocol::SchemaOperation::create, made);
        EXPECT_EQ(place.found(report).at(0).migrationPlan, u"Plan");
        EXPECT_EQ(place.found(report).at(0).migrationAction, text) << action;
        EXPECT_EQ(place.planNames(report), Names{u"Plan"});
        place.changePlan(protocol::SchemaOperation::remove, place.plans().at(0));
        EXPECT_EQ(place.found(report).at(0).migrationPlan, u"");
        EXPECT_EQ(place.planNames(report), Names{});
    }
}

TEST(FoundPrinterList, aPlanCoversAPrinterWhenAllThatItNamesAgrees) {
    InventoryPlace place;
    place.addShared(u"HP 1", "10.1.0.7", u"X5"); // its port is IP_10.1.0.7
    const auto report = place.report();
    const auto covers = [&](const SchemaRecord& made) {
        place.changePlan(protocol::SchemaOperation::create, made);
        const bool shown = place.found(report).at(0).migrationPlan == u"P";
        EXPECT_EQ(!place.planNames(report).empty(), shown);
        place.changePlan(protocol::SchemaOperation::remove, place.plans().at(0));
        return shown;
    };
    EXPECT_TRUE(covers(plan(u"P", "10.1.0.7")));
    EXPECT_TRUE(covers(plan(u"P", " 10.1.0.7 ", u"hp 1", u"x5", "IP_10.1.0.7")));
    EXPECT_TRUE(covers(plan(u"P", "", u"HP 1")));
    EXPECT_TRUE(covers(plan(u"P", "", u"hp 1", u"X5")));
    EXPECT_TRUE(covers(plan(u"P", "", u"", u"x5", "IP_10.1.0.7")));
    EXPECT_FALSE(covers(plan(u"P", "10.1.0.8")));
    EXPECT_FALSE(covers(plan(u"P", "10.1.0.7", u"HP 2")));
    EXPECT_FALSE(covers(plan(u"P", "10.1.0.7", u"", u"X6")));
    EXPECT_FALSE(covers(plan(u"P", "10.1.0.7", u"", u"", "LPT1:")));
    EXPECT_FALSE(covers(plan(u"P", "10.1.0.8", u"HP 1")));
    EXPECT_FALSE(covers(plan(u"P", "", u"HP 2", u"X5")));
    EXPECT_FALSE(covers(plan(u"P", "", u"", u"X5", "LPT1:")));
    EXPECT_FALSE(covers(plan(u"P", "", u"", u"", "IP_10.1.0.7"))); // a port alone names no printer
    EXPECT_FALSE(covers(plan(u"P", "")));
}

TEST(FoundPrinterList, ofSeveralPlansTheOneThatNamesThePrinterBestDecides) {
    InventoryPlace place;
    place.addShared(u"HP 1", "10.1.0.7", u"X5");
    const auto report = place.report();
    for (const auto& next :
         {plan(u"model", "", u"", u"X5"), plan(u"model and port", "", u"", u"X5", "IP_10.1.0.7"),
          plan(u"name", "", u"HP 1"), plan(u"address", "10.1.0.7"), plan(u"address and name", "10.1.0.7", u"HP 1"),
          plan(u"the same, newer", "10.1.0.7", u"HP 1")}) {
        place.changePlan(protocol::SchemaOperation::create, next);
        EXPECT_EQ(place.found(report).at(0).migrationPlan, next.schemaName);
    }
    place.changePlan(protocol::SchemaOperation::create, plan(u"too late", "10.1.0.7"));
    EXPECT_EQ(place.found(report).at(0).migrationPlan, u"the same, newer");
    EXPECT_EQ(place.planNames(report).size(), 7U);
}

TEST(FoundPrinterList, longNamesAreCutSoThatTheFrameCanBeReceived) {
    InventoryPlace place;
    place.addShared(u"HP 1", "10.1.0.7");
    const auto printer = place.addOwn(std::u16string(30000, u'p'), "10.1.0.7");
    place.addQueue(std::u16string(30000, u'q'), printer);
    place.changePlan(protocol::SchemaOperation::create, plan(std::u16string(30000, u'm'), "10.1.0.7"));
    const auto found = place.found(place.report()).at(0);
    EXPECT_EQ(found.mappedPrinterName, std::u16string(4000, u'p'));
    EXPECT_EQ(found.mappedQueueName, std::u16string(4000, u'q'));
    EXPECT_EQ(found.migrationPlan, std::u16string(4000, u'm'));
}

TEST(FoundModelList, modelsAreCountedAndKnownByTheirNames) {
    InventoryPlace place;
    auto database = place.store().openDatabase();
    Query brand(database.getHandle(), "INSERT INTO driverBrand (id, name, nameKey) VALUES (?, ?, ?)");
    Query model(database.getHandle(), "INSERT INTO driverModel (id, brandId, name, nameKey) VALUES (?, 'b', ?, ?)");
    Query driver(database.getHandle(), "INSERT INTO driver (id, modelId, brandId, version, versionKey, comment, "
                                       "uploadDate, uploadedBy) VALUES ('d', ?, 'b', x'', x'', x'', '', x'')");
    brand.execute(std::string("b"), std::u16string(u"B"), nameKey(u"B"));
    for (const auto& [id, name] :
         std::vector<std::pair<std::string, std::u16string>>{{"m1", u"With"}, {"m2", u"Without"}}) {
        model.execute(id, name, nameKey(name));
    }
    driver.execute(std::string("m1"));
    const auto one = place.addShared(u"1", "10.1.0.1", u"WITH");
    const auto two = place.addShared(u"2", "10.1.0.2", u"With");
    place.addShared(u"3", "10.1.0.3", u"Without");
    place.addShared(u"4", "10.1.0.4", u"Unheard of");
    const auto client = place.old().addWorkstation(u"PC-1", "10.8.0.1", "");
    const auto other = place.old().addWorkstation(u"PC-2", "10.8.0.2", "");
    place.old().addUse(one, client);
    place.old().addUse(two, client);
    place.old().addUse(two, other);
    const auto report = place.report();
    const protocol::InventoryModelRecord unknown{.modelName = u"Unheard of", .queueCount = 1, .modelId = {}};
    const protocol::InventoryModelRecord with{.modelName = u"WITH",
                                              .modelExists = true,
                                              .driverExists = true,
                                              .queueCount = 2,
                                              .clientCount = 2,
                                              .modelId = "m1"};
    const protocol::InventoryModelRecord without{
        .modelName = u"Without", .modelExists = true, .queueCount = 1, .modelId = "m2"};
    EXPECT_EQ(place.models(report), (std::vector{unknown, with, without}));
    EXPECT_EQ(place.models(report, 1), std::vector{with});
    EXPECT_EQ(place.models(report, 2), (std::vector{unknown, without}));
    EXPECT_TRUE(place.models(report, 3).empty());
    EXPECT_TRUE(place.models("nobody").empty());
    database.exec("INSERT INTO alternateModel (modelId, alternateModelId, nameKey) "
                  "SELECT 'm2', id, nameKey FROM driverModel WHERE id = 'm1'");
    EXPECT_EQ(place.models(report, 2), std::vector{unknown}); // another model's driver may be used for it
}

} // namespace
} // namespace server
