#include "server/inventory/InventoryScan.h"

#include "protocol/inventory/IpRange.h"
#include "server/inventory/IpScope.h"
#include "tests/server/inventory/InventoryPlace.h"

#include <gtest/gtest.h>

namespace server {
namespace {

using test::InventoryPlace;
using Names = std::vector<std::u16string>;
namespace type = protocol::reportType;

TEST(InventoryScan, aReportHoldsWhatWasFoundAndWhatWasAskedFor) {
    InventoryPlace place;
    const auto printer = place.addShared(u"HP 1", "10.1.0.7", u"X5");
    place.old().addUse(printer, place.old().addWorkstation(u"PC-1", "10.8.0.1", ""));
    place.old().addUse(printer, place.old().addWorkstation(u"PC-2", "10.8.0.2", ""));
    ASSERT_TRUE(isDone(place.makeReport({.reportUser = u"eva",
                                         .reportName = u"May",
                                         .comment = u"all of it",
                                         .dateFrom = u"2025-01-01 00:00:00",
                                         .dateTo = u"2025-12-31 23:59:59",
                                         .ipScope = "10.1.*",
                                         .reportType = type::all})));
    const auto report = place.reports().at(0);
    EXPECT_EQ(report.reportUser, u"eva");
    EXPECT_EQ(report.reportName, u"May");
    EXPECT_EQ(report.comment, u"all of it");
    EXPECT_EQ(report.ipScope, u"10.1.*");
    EXPECT_EQ(report.reportType, type::all);
    EXPECT_EQ(report.reportId.size(), 36U);
    EXPECT_EQ(report.reportDate.size(), 23U);
    const auto found = place.found(report.reportId);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].entryId.size(), 36U);
    EXPECT_EQ(found[0].windowsName, u"HP 1");
    EXPECT_EQ(found[0].printerIp, "10.1.0.7");
    EXPECT_EQ(found[0].printerPort, "IP_10.1.0.7");
    EXPECT_EQ(found[0].clientCount, 2U);
    EXPECT_EQ(found[0].model, u"X5");
    EXPECT_EQ(found[0].workstation, u"PRN-1");
}

TEST(InventoryScan, aPrinterWithNoMatchHasNoPrinterNoQueueAndNoPlan) {
    InventoryPlace place;
    place.addShared(u"HP 1", "10.1.0.7");
    place.addOwn(u"Elsewhere", "10.1.0.8");
    const auto found = place.found(place.report()).at(0);
    EXPECT_EQ(found.mappedPrinterName, u"");
    EXPECT_EQ(found.mappedPrinterId, "");
    EXPECT_EQ(found.mappedQueueName, u"");
    EXPECT_EQ(found.mappedQueueId, "");
    EXPECT_EQ(found.migrationPlan, u"");
    EXPECT_EQ(found.migrationAction, u"");
    EXPECT_EQ(found.clientCount, 0U);
}

TEST(InventoryScan, theTypeOfAReportSelectsWhatItHolds) {
    InventoryPlace place;
    place.addShared(u"mapped", "10.1.0.7");
    place.addShared(u"unmapped", "10.1.0.8");
    place.addLocal(u"usb", u"PC-1", "10.8.0.1");
    place.addLocal(u"shared usb", u"PC-2", "10.8.0.2", u"Ink", true);
    place.addOwn(u"P", "10.1.0.7");
    const auto all = place.report(type::all);
    EXPECT_EQ(place.foundNames(all), (Names{u"mapped", u"unmapped"}));
    EXPECT_EQ(place.foundNames(all, 3), (Names{u"usb", u"shared usb"}));
    const auto mapped = place.report(type::onlyMapped);
    EXPECT_EQ(place.foundNames(mapped), Names{u"mapped"});
    EXPECT_EQ(place.foundNames(mapped, 3), Names{});
    const auto local = place.report(type::onlyLocal);
    EXPECT_EQ(place.foundNames(local), Names{});
    EXPECT_EQ(place.foundNames(local, 3), (Names{u"usb", u"shared usb"}));
    const auto shared = place.report(type::onlyShared);
    EXPECT_EQ(place.foundNames(shared), (Names{u"mapped", u"unmapped"}));
    EXPECT_EQ(place.foundNames(shared, 3), Names{u"shared usb"});
}

TEST(InventoryScan, aPrinterStandsAtItsAddressOrElseAtThatOfItsWorkstation) {
    InventoryPlace place;
    place.addShared(u"near", "10.1.0.7");
    place.addShared(u"far", "10.2.0.7");
    place.addLocal(u"usb", u"PC-1", "10.1.0.99");
    place.addLocal(u"usb of a host without address", u"PC-2", "");
    const auto some = place.report(type::all, "10.1.0.0/16");
    EXPECT_EQ(place.foundNames(some), Names{u"near"});
    EXPECT_EQ(place.foundNames(some, 3), Names{u"usb"});
    EXPECT_EQ(place.found(some, 3).at(0).printerIp, "");
    EXPECT_EQ(place.foundNames(place.report(), 3).size(), 2U);
}

TEST(InventoryScan, onlyWhatWasSeenInThePeriodIsFound) {
    InventoryPlace place;
    place.addShared(u"before", "10.1.0.1", u"X5", "2025-03-04 23:59:59");
    place.addShared(u"first", "10.1.0.2", u"X5", "2025-03-05 00:00:00");
    place.addShared(u"last", "10.1.0.3", u"X5", "2025-03-05 23:59:59");
    place.addShared(u"after", "10.1.0.4", u"X5", "2025-03-06 00:00:00");
    EXPECT_EQ(place.foundNames(place.report(type::all, "", u"2025-03-05 00:00:00", u"2025-03-05 23:59:59")),
              (Names{u"first", u"last"}));
    EXPECT_EQ(place.foundNames(place.report(type::all, "", u"2025-03-05 00:00:00")),
              (Names{u"first", u"last", u"after"}));
    EXPECT_EQ(place.foundNames(place.report(type::all, "", u"", u"2025-03-05")), (Names{u"before", u"first", u"last"}));
}

TEST(InventoryScan, whatAnActiveRangeTellsToIgnoreIsLeftOut) {
    namespace range = protocol::rangeType;
    InventoryPlace place;
    for (const auto* const ip : {"10.1.0.1", "10.1.0.2", "10.1.0.3", "10.2.0.1"}) {
        place.addShared(wire::toWide(ip), ip);
    }
    place.addRange(u"10.1.0.0", u"10.1.0.255", range::migrate);
    place.addRange(u"10.1.0.2", u"10.1.0.2", range::ignore);
    place.addRange(u"10.2.0.1", u"", range::ignore);
    place.addRange(u"10.2.0.0", u"10.2.0.255", range::forceMigrate);
    auto resting = place.ranges().at(0);
    resting.active = false;
    resting.rangeType = range::ignore;
    place.changeRange(protocol::RangeOperation::add, resting);
    const auto found = place.found(place.report());
    EXPECT_EQ(test::each(found, &protocol::InventoryPrinterRecord::printerIp),
              (std::vector<std::string>{"10.1.0.1", "10.1.0.3", "10.2.0.1"}));
    EXPECT_EQ(test::each(found, &protocol::InventoryPrinterRecord::spare),
              (Names{u"Migrate", u"Migrate", u"Force Migrate"}));
}

TEST(InventoryScan, aReportStaysAsItWasMade) {
    InventoryPlace place;
    place.addShared(u"one", "10.1.0.1");
    const auto report = place.report();
    place.addShared(u"two", "10.1.0.2");
    place.addRange(u"10.1.0.1", u"10.1.0.1", protocol::rangeType::ignore);
    EXPECT_EQ(place.foundNames(report), Names{u"one"});
    EXPECT_EQ(place.foundNames(place.report()), Names{u"two"});
}

TEST(InventoryScan, aReportOfNothingHasFourEmptyViews) {
    InventoryPlace place;
    place.addShared(u"one", "10.1.0.1");
    const auto report = place.report(type::all, "192.0.2.1");
    ASSERT_NE(report, "");
    for (std::uint16_t kind = 0; kind < 5; ++kind) {
        EXPECT_TRUE(place.found(report, kind).empty()) << kind;
    }
    EXPECT_TRUE(place.models(report).empty());
    EXPECT_TRUE(place.planNames(report).empty());
}

TEST(ReportService, whatCannotBeMadeIsRefusedAndLeavesNoReport) {
    InventoryPlace place;
    const protocol::CreateInventoryReportRequest good{.reportUser = u"eva",
                                                      .reportName = u"R",
                                                      .comment = {},
                                                      .dateFrom = {},
                                                      .dateTo = {},
                                                      .ipScope = {},
                                                      .reportType = 0};
    const auto refusedWith = [&](auto change) {
        auto request = good;
        change(request);
        return place.makeReport(request).text;
    };
    EXPECT_EQ(refusedWith([](auto& request) { request.reportName.clear(); }), u"A report needs a name.");
    EXPECT_EQ(refusedWith([](auto& request) { request.reportType = 4; }), u"There is no report of this type.");
    EXPECT_EQ(refusedWith([](auto& request) { request.ipScope = "office"; }),
              u"The IP scope \"office\" cannot be understood.");
    EXPECT_EQ(refusedWith([](auto& request) { request.dateTo = u"soon"; }),
              u"The period of the report has a date that cannot be understood.");
    EXPECT_EQ(refusedWith([](auto& request) {
                  request.dateFrom = u"2025-03-06";
                  request.dateTo = u"2025-03-05";
              }),
              u"The period of the report ends before it begins.");
    EXPECT_EQ(refusedWith([](auto& request) {
                  request.comment.assign(20000, u'c');
                  request.reportUser.assign(20000, u'u');
              }),
              u"The texts of this report are too long to be sent back in one piece.");
    EXPECT_TRUE(place.reports().empty());
    EXPECT_TRUE(isDone(place.makeReport(good)));
}

TEST(ReportService, deletingAReportTakesAlongWhatItFound) {
    InventoryPlace place;
    place.addShared(u"one", "10.1.0.1");
    const auto first = place.report();
    const auto second = place.report();
    EXPECT_TRUE(isDone(ReportService(place.connection()).remove({.reportId = first})));
    EXPECT_FALSE(isDone(ReportService(place.connection()).remove({.reportId = first})));
    EXPECT_EQ(place.reports().size(), 1U);
    auto database = place.store().openDatabase();
    EXPECT_EQ(database.execAndGet("SELECT count(*) FROM inventoryEntry").getInt(), 1);
    EXPECT_EQ(database.execAndGet("SELECT count(*) FROM inventoryModel").getInt(), 1);
    EXPECT_EQ(place.foundNames(second), Names{u"one"});
}

} // namespace
} // namespace server
