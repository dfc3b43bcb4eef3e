#include "server/SampleEstate.h"
#include "server/estate/RecordTable.h"
#include "server/estate/RegionTable.h"
#include "tests/server/inventory/InventoryPlace.h"
#include "tests/server/support/RunningServer.h"
#include "tests/server/support/TestClient.h"

#include <gtest/gtest.h>

#include <set>

namespace server {
namespace {

using namespace test; // the words of requests
using support::hex;

Bytes planFields(std::uint8_t operation, const std::string& id, const std::u16string& name, const std::string& ip,
                 std::uint32_t action) {
    return u8(operation) + str16(u"eva") + u32(7) + str16(u"") + str8("") + str8(ip) + str8("") + str16(u"") +
           str16(u"") + str8(id) + str16(name) + u32(action) + u8(1);
}

Bytes rangeFields(std::uint8_t operation, const std::string& id, std::uint8_t active, const std::u16string& name,
                  const std::u16string& first, const std::u16string& last) {
    return u8(operation) + str8(id) + u8(active) + str16(name) + str16(u"") + str16(first) + str16(last) + u16(9) +
           str16(u"eva") + str16(u"t1") + u32(3) + u32(8) + str8("t2") + str16(u"t3");
}

Bytes reportFields(const std::u16string& name, const std::string& scope, std::uint16_t type) {
    return str16(u"eva") + str16(name) + str16(u"c") + str16(u"") + str16(u"") + str8(scope) + u16(type);
}

// A list of one record with these fields.
std::vector<Bytes> only(const Bytes& fields) {
    return {support::dataMessage(fields)};
}

class InventoryServer : public testing::Test {
protected:
    InventoryServer() : connection(server.store().openConnection()) {}

    // The records of a list, each a message.
    std::vector<Bytes> list(std::uint16_t opcode, const std::optional<Bytes>& fields) {
        auto messages = messagesOf(ask(server.port(), request(opcode, fields)));
        FieldCursor count(messages.at(0));
        EXPECT_EQ(count.number(2), messages.size() - 1);
        messages.erase(messages.begin());
        return messages;
    }
    void change(std::uint16_t opcode, const Bytes& fields) {
        EXPECT_EQ(ask(server.port(), request(opcode, fields)), Bytes()) << opcode;
    }
    std::string firstId(std::uint16_t opcode, const std::optional<Bytes>& fields) {
        const auto records = list(opcode, fields);
        return FieldCursor(records.at(0)).text8();
    }
    std::string planId() {
        const auto records = list(37, str8("") + u32(0));
        FieldCursor cursor(records.at(0));
        static_cast<void>(cursor.text16());
        static_cast<void>(cursor.number(4));
        static_cast<void>(cursor.text16());
        for (int text = 0; text < 3; ++text) {
            static_cast<void>(cursor.text8());
        }
        for (int text = 0; text < 2; ++text) {
            static_cast<void>(cursor.text16());
        }
        return cursor.text8();
    }
    std::int64_t addOldPrinter(const std::u16string& name, const std::string& ip) {
        auto& old = connection->table<OldEstateTable>();
        OldPrinter printer;
        printer.server = old.addServer(u"PRN-1", "10.9.0.1", "");
        printer.windowsName = name;
        printer.ip = ip;
        printer.port = "9100";
        printer.model = u"X5";
        printer.shared = true;
        printer.lastSeen = "2025-06-01 12:00:00";
        return old.addPrinter(printer);
    }

    RunningServer server;
    std::unique_ptr<StoreConnection> connection;
};

TEST_F(InventoryServer, aPlanIsMadeListedFetchedSavedAndDeleted) {
    server.start();
    change(38, planFields(1, "", u"P", "10.1.0.7", 2));
    const auto id = planId();
    const auto expected = only(str16(u"eva") + u32(7) + str16(u"") + str8("") + str8("10.1.0.7") + str8("") +
                               str16(u"") + str16(u"") + str8(id) + str16(u"P") + u32(2) + u8(1));
    EXPECT_EQ(list(37, str8("") + u32(0)), expected);
    EXPECT_EQ(list(37, str8(id) + u32(1)), expected);
    EXPECT_TRUE(list(37, str8("nobody") + u32(1)).empty());
    EXPECT_TRUE(list(37, str8(id) + u32(2)).empty());
    change(38, planFields(2, id, u"Q", "10.1.0.8", 3));
    EXPECT_NE(list(37, str8(id) + u32(1)), expected);
    change(38, planFields(2, "nobody", u"R", "", 1));
    change(38, planFields(4, "nobody", u"", "", 0));
    EXPECT_EQ(list(37, str8("") + u32(0)).size(), 1U);
    change(38, planFields(4, id, u"", "", 0));
    EXPECT_TRUE(list(37, str8("") + u32(0)).empty());
}

TEST_F(InventoryServer, theWholeListHasThePlansOfAllReportsAndAReportItsOwn) {
    addOldPrinter(u"old", "10.1.0.7");
    server.start();
    change(41, reportFields(u"R", "", 0));
    change(41, reportFields(u"Empty", "192.0.2.1", 0));
    change(38, planFields(1, "", u"covers", "10.1.0.7", 2));
    change(38, planFields(1, "", u"does not", "10.1.0.8", 2));
    const auto reports = list(40, std::nullopt);
    ASSERT_EQ(reports.size(), 2U);
    EXPECT_EQ(list(37, str8("") + u32(0)).size(), 2U);
    EXPECT_EQ(list(37, str8(FieldCursor(reports[0]).text8()) + u32(0)).size(), 1U);
    EXPECT_EQ(list(37, str8(FieldCursor(reports[1]).text8()) + u32(0)).size(), 0U);
    EXPECT_EQ(list(37, str8("nobody") + u32(0)).size(), 0U);
}

TEST_F(InventoryServer, queuesAreSearched) {
    const auto region = connection->table<RegionTable>().insert(0, 0, u"North");
    protocol::PrinterRecord record;
    record.regionId = region;
    record.recordType = 3;
    for (const auto* const name : {u"Color", u"Mono"}) {
        record.name = name;
        record.id = wire::toUtf8(name);
        connection->table<RecordTable>().insert({.record = record, .printerId = {}});
    }
    server.start();
    EXPECT_EQ(list(39, str16(u"COL")), only(str8("Color") + str16(u"Color")));
    EXPECT_EQ(list(39, str16(u"")).size(), 2U);
    EXPECT_EQ(list(39, str16(u"m?n*")).size(), 1U);
    EXPECT_TRUE(list(39, str16(u"x")).empty());
}

TEST_F(InventoryServer, aReportIsMadeViewedAndDeleted) {
    connection->table<OldEstateTable>().addUse(
        addOldPrinter(u"old", "10.1.0.7"), connection->table<OldEstateTable>().addWorkstation(u"PC-1", "10.8.0.1", ""));
    server.start();
    change(41, reportFields(u"R", "10.1.*", 3));
    const auto reports = list(40, std::nullopt);
    ASSERT_EQ(reports.size(), 1U);
    FieldCursor report(reports[0]);
    const auto id = report.text8();
    EXPECT_EQ(report.text16().size(), 23U); // the date
    EXPECT_EQ(report.text16(), u"eva");
    EXPECT_EQ(report.text16(), u"R");
    EXPECT_EQ(report.text16(), u"c");
    EXPECT_EQ(report.text16(), u"10.1.*");
    EXPECT_EQ(report.number(2), 3U);
    EXPECT_TRUE(report.atEnd());

    EXPECT_EQ(list(43, u16(0) + str8(id)), only(str16(u"X5") + hex("00 00") + u32(1) + u32(1) + str8("")));
    EXPECT_TRUE(list(43, u16(1) + str8(id)).empty());
    EXPECT_EQ(list(43, u16(2) + str8(id)).size(), 1U);
    EXPECT_TRUE(list(43, u16(3) + str8(id)).empty());
    EXPECT_TRUE(list(43, u16(0) + str8("nobody")).empty());

    for (std::uint16_t kind = 0; kind < 6; ++kind) {
        EXPECT_EQ(list(44, u16(kind) + str8(id)).size(), kind < 3 ? 1U : 0U) << kind;
    }
    const auto found = list(44, u16(0) + str8(id));
    const auto entry = FieldCursor(found.at(0)).text8();
    EXPECT_EQ(found.at(0),
              support::dataMessage(str8(entry) + str16(u"old") + str8("10.1.0.7") + str8("9100") + str16(u"") +
                                   str16(u"") + u32(1) + str16(u"X5") + str16(u"") + str8("") + str16(u"") + str8("") +
                                   str16(u"PRN-1") + str16(u"") + str16(u"") + str16(u"")));

    change(42, str8("nobody"));
    EXPECT_EQ(list(40, std::nullopt).size(), 1U);
    change(42, str8(id));
    EXPECT_TRUE(list(40, std::nullopt).empty());
    EXPECT_TRUE(list(44, u16(0) + str8(id)).empty());
}

TEST_F(InventoryServer, whatIsNoReportFiltersTheNewestOne) {
    addOldPrinter(u"old", "10.1.0.7");
    server.start();
    EXPECT_TRUE(list(44, u16(0) + str8("10.1")).empty());
    change(41, reportFields(u"R", "", 0));
    EXPECT_EQ(list(44, u16(0) + str8("10.1")).size(), 1U);
    EXPECT_EQ(list(44, u16(2) + str8("OLD")).size(), 1U);
    EXPECT_TRUE(list(44, u16(2) + str8("new")).empty());
    change(41, reportFields(u"Empty", "192.0.2.1", 0));
    EXPECT_TRUE(list(44, u16(0) + str8("10.1")).empty());
}

TEST_F(InventoryServer, aReportThatCannotBeMadeIsMissingInTheList) {
    server.start();
    change(41, reportFields(u"", "", 0));
    change(41, reportFields(u"R", "somewhere", 0));
    change(41, reportFields(u"R", "", 4));
    EXPECT_TRUE(list(40, std::nullopt).empty());
}

TEST_F(InventoryServer, aRangeIsAddedListedFetchedSwitchedSavedAndDeleted) {
    server.start();
    change(56, rangeFields(1, "", 0, u"Hall", u"10.1.0.0", u"10.1.0.9"));
    const auto id = firstId(55, u8(0) + str8(""));
    const auto expected = [&](std::uint8_t active, const std::u16string& name) {
        const auto fields = rangeFields(1, id, active, name, u"10.1.0.0", u"10.1.0.9");
        return only({fields.begin() + 1, fields.end()});
    };
    EXPECT_EQ(list(55, u8(0) + str8("")), expected(0, u"Hall"));
    EXPECT_EQ(list(55, u8(2) + str8(id)), expected(0, u"Hall"));
    EXPECT_TRUE(list(55, u8(2) + str8("nobody")).empty());
    EXPECT_TRUE(list(55, u8(1) + str8(id)).empty());
    change(56, rangeFields(4, id, 1, u"", u"", u""));
    change(56, rangeFields(4, id, 1, u"", u"", u"")); // consoles send it twice
    EXPECT_EQ(list(55, u8(0) + str8("")), expected(1, u"Hall"));
    change(56, rangeFields(2, id, 1, u"Roof", u"10.1.0.0", u"10.1.0.9"));
    change(56, rangeFields(2, id, 1, u"Cellar", u"10.1.0.9", u"10.1.0.0"));
    change(56, rangeFields(1, "", 1, u"Cellar", u"somewhere", u""));
    change(56, rangeFields(3, "nobody", 0, u"", u"", u""));
    EXPECT_EQ(list(55, u8(0) + str8("")), expected(1, u"Roof"));
    change(56, rangeFields(3, id, 0, u"", u"", u""));
    EXPECT_TRUE(list(55, u8(0) + str8("")).empty());
}

TEST_F(InventoryServer, anOperationThatDoesNotExistDoesNothing) {
    server.start();
    for (const std::uint8_t operation : std::initializer_list<std::uint8_t>{0, 3, 5, 255}) {
        change(38, planFields(operation, "", u"P", "", 2));
    }
    for (const std::uint8_t operation : std::initializer_list<std::uint8_t>{0, 5, 255}) {
        change(56, rangeFields(operation, "", 1, u"R", u"", u""));
    }
    EXPECT_TRUE(list(37, str8("") + u32(0)).empty());
    EXPECT_TRUE(list(55, u8(0) + str8("")).empty());
}

TEST(InventorySample, everyListHoldsSomething) {
    for (const int printers : {0, 600}) {
        InventoryPlace place;
        place.connection().change([&] {
            SampleEstate sample(place.connection());
            if (printers == 0) {
                sample.fillSmall();
            } else {
                sample.fill(printers);
            }
            return true;
        });
        const auto reports = place.reports();
        EXPECT_EQ(each(reports, &protocol::InventoryReportRecord::reportType),
                  (std::vector<std::uint16_t>{3, 0, 2, 1, 0}));
        const auto whole = reports.back().reportId;
        const auto found = place.found(whole);
        EXPECT_GT(found.size(), 20U);
        const auto some = [&](auto member) {
            return std::ranges::any_of(found, [&](const auto& one) { return !(one.*member).empty(); }) &&
                   std::ranges::any_of(found, [&](const auto& one) { return (one.*member).empty(); });
        };
        EXPECT_TRUE(some(&protocol::InventoryPrinterRecord::mappedPrinterId));
        EXPECT_TRUE(some(&protocol::InventoryPrinterRecord::mappedQueueId));
        EXPECT_TRUE(some(&protocol::InventoryPrinterRecord::migrationPlan));
        EXPECT_GT(place.found(whole, 3).size(), 3U);
        EXPECT_TRUE(place.found(reports[1].reportId).empty());
        EXPECT_GT(place.found(reports[3].reportId).size(), 3U);
        EXPECT_GT(place.models(whole, 0).size(), place.models(whole, 2).size());
        EXPECT_GT(place.models(whole, 2).size(), 0U);
        EXPECT_GT(place.planNames(whole).size(), 1U);
        const auto plans = place.plans();
        const auto actions = each(plans, &protocol::SchemaRecord::action);
        EXPECT_EQ(std::set(actions.begin(), actions.end()), (std::set<std::int32_t>{1, 2, 3}));
        const auto types = each(place.ranges(), &protocol::IpRangeRecord::rangeType);
        EXPECT_EQ(std::set(types.begin(), types.end()), (std::set<std::int32_t>{0, 1, 2, 3, 4}));
    }
}

} // namespace
} // namespace server
