#include "tests/client/ClientTest.h"
#include "tests/protocol/inventory/InventoryRecordBytes.h"

namespace client {
namespace {

class Inventory : public ClientTest {
protected:
    // A list of two records; cursors return the first one last.
    static Bytes listOfTwo(const char* first, const char* second) { return countedList({hex(first), hex(second)}); }
};

constexpr const char* emptyModelFields = "00 00 00 00 00 00 00 00 00 00 00 00 00 00";
constexpr const char* emptyReportFields = "00 00 00 00 00 00 00 00 00 00 00 00 00 00";
constexpr const char* emptyFoundFields = "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00"
                                         "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00";

TEST_F(Inventory, schemasOfAllOrOfAReportAreHandedOutLastFirst) {
    const Bytes reply = listOfTwo(protocol::ordinarySchemaFields, protocol::emptySchemaFields);
    answer({reply, reply});
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.listSchemas());
    EXPECT_EQ(client.schemas(), (std::vector{protocol::ordinarySchema(), protocol::SchemaRecord{}}));
    EXPECT_TRUE(client.listSchemas("r1"));
    protocol::SchemaRecord schema;
    EXPECT_TRUE(client.nextSchema(schema));
    EXPECT_EQ(schema, protocol::SchemaRecord{});
    EXPECT_TRUE(client.nextSchema(schema));
    EXPECT_EQ(schema, protocol::ordinarySchema());
    EXPECT_FALSE(client.nextSchema(schema));

    EXPECT_EQ(received(0), request(37, "00 00 00 00 00 00"));
    EXPECT_EQ(received(1), request(37, "02 00 72 31 00 00 00 00"));
}

TEST_F(Inventory, oneSchemaIsFetchedForEditingAndLeavesTheListAlone) {
    answer({countedList({hex(protocol::emptySchemaFields)}), countedList({hex(protocol::ordinarySchemaFields)}),
            countedList({})});
    CQVXAdminClass client(settings);
    client.listSchemas();

    EXPECT_EQ(client.getSchema("s1"), protocol::ordinarySchema());
    EXPECT_EQ(client.getSchema("s2"), std::nullopt);

    EXPECT_EQ(client.schemas().size(), 1U);
    EXPECT_EQ(received(1), request(37, "02 00 73 31 01 00 00 00"));
}

TEST_F(Inventory, aSchemaIsCreatedSavedAndDeleted) {
    answer({Bytes{}, Bytes{}, Bytes{}});
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.createSchema(protocol::ordinarySchema()));
    EXPECT_TRUE(client.updateSchema(protocol::ordinarySchema()));
    EXPECT_TRUE(client.deleteSchema("s1"));

    EXPECT_EQ(received(0), request(38, hex("01") + hex(protocol::ordinarySchemaFields)));
    EXPECT_EQ(received(1), request(38, hex("02") + hex(protocol::ordinarySchemaFields)));
    EXPECT_EQ(received(2), request(38, "04 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00"
                                       "02 00 73 31 00 00 00 00 00 00 00"));
    EXPECT_EQ(observer.ended.at(0).summary, "Plan");
}

TEST_F(Inventory, queuesAreSearchedByAPatternThatMayBeEmpty) {
    const Bytes reply = listOfTwo("02 00 71 31 02 00 41 00", "02 00 71 32 02 00 42 00");
    answer({reply, countedList({})});
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.searchQueues(u"a*"));
    EXPECT_EQ(client.foundQueues().front().queueName, u"A");
    protocol::FoundQueueRecord queue;
    EXPECT_TRUE(client.nextFoundQueue(queue));
    EXPECT_EQ(queue, (protocol::FoundQueueRecord{.queueId = "q2", .queueName = u"B"}));
    EXPECT_TRUE(client.searchQueues(u""));
    EXPECT_FALSE(client.nextFoundQueue(queue));

    EXPECT_EQ(received(0), request(39, "04 00 61 00 2A 00"));
    EXPECT_EQ(received(1), request(39, "00 00"));
}

TEST_F(Inventory, reportsAreListedLastFirstWithARequestOfOneMessage) {
    answer({listOfTwo(protocol::ordinaryReportFields, emptyReportFields)});
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.listInventoryReports());
    EXPECT_EQ(client.inventoryReports().size(), 2U);
    protocol::InventoryReportRecord report;
    EXPECT_TRUE(client.nextInventoryReport(report));
    EXPECT_EQ(report, protocol::InventoryReportRecord{});
    EXPECT_TRUE(client.nextInventoryReport(report));
    EXPECT_EQ(report, protocol::ordinaryReport());
    EXPECT_FALSE(client.nextInventoryReport(report));

    EXPECT_EQ(received(), frame({commandMessage(40, 1)}));
}

TEST_F(Inventory, aReportIsCreatedAndDeleted) {
    answer({Bytes{}, Bytes{}});
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.createInventoryReport({.reportUser = u"e",
                                              .reportName = u"N",
                                              .comment = u"c",
                                              .dateFrom = u"f",
                                              .dateTo = u"t",
                                              .ipScope = "10.*",
                                              .reportType = 3}));
    EXPECT_TRUE(client.deleteInventoryReport("r1"));

    EXPECT_EQ(received(0), request(41, "02 00 65 00 02 00 4E 00 02 00 63 00 02 00 66 00 02 00 74 00"
                                       "04 00 31 30 2E 2A 03 00"));
    EXPECT_EQ(received(1), request(42, "02 00 72 31"));
    EXPECT_EQ(observer.ended.at(0).summary, "N");
}

TEST_F(Inventory, modelsAreAskedForByKindAndReportAndHandedOutLastFirst) {
    answer({listOfTwo(protocol::ordinaryModelFields, emptyModelFields)});
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.listInventoryModels(2, "r1"));
    EXPECT_EQ(client.inventoryModels().front(), protocol::ordinaryModel());
    protocol::InventoryModelRecord model;
    EXPECT_TRUE(client.nextInventoryModel(model));
    EXPECT_EQ(model, protocol::InventoryModelRecord{});
    EXPECT_TRUE(client.nextInventoryModel(model));
    EXPECT_FALSE(client.nextInventoryModel(model));

    EXPECT_EQ(received(), request(43, "02 00 02 00 72 31"));
}

TEST_F(Inventory, foundPrintersAreHandedOutLastFirstWithTheirQueueAndWithoutTheSpareText) {
    answer({listOfTwo(protocol::ordinaryFoundFields, emptyFoundFields)});
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.listInventoryPrinters(3, "r1"));
    auto expected = protocol::ordinaryFound();
    expected.spare.clear();
    EXPECT_EQ(client.inventoryPrinters().front(), expected);
    protocol::InventoryPrinterRecord found;
    EXPECT_TRUE(client.nextInventoryPrinter(found));
    EXPECT_EQ(found, protocol::InventoryPrinterRecord{});
    EXPECT_TRUE(client.nextInventoryPrinter(found));
    EXPECT_EQ(found.mappedQueueId, "q1");
    EXPECT_FALSE(client.nextInventoryPrinter(found));

    EXPECT_EQ(received(), request(44, "03 00 02 00 72 31"));
}

TEST_F(Inventory, ipRangesAreListedLastFirstAndOneIsFetched) {
    const Bytes reply = listOfTwo(protocol::ordinaryRangeFields, protocol::emptyRangeFields);
    answer({reply, countedList({hex(protocol::ordinaryRangeFields)})});
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.listIpRanges());
    EXPECT_EQ(client.ipRanges().front(), protocol::ordinaryRange());
    protocol::IpRangeRecord range;
    EXPECT_TRUE(client.nextIpRange(range));
    EXPECT_EQ(range, protocol::IpRangeRecord{});
    EXPECT_TRUE(client.getIpRange("i1"));
    EXPECT_TRUE(client.nextIpRange(range));
    EXPECT_EQ(range, protocol::ordinaryRange());
    EXPECT_FALSE(client.nextIpRange(range));

    EXPECT_EQ(received(0), request(55, "00 00 00"));
    EXPECT_EQ(received(1), request(55, "02 02 00 69 31"));
}

TEST_F(Inventory, anIpRangeIsAddedSavedDeletedAndSwitched) {
    answer({Bytes{}, Bytes{}, Bytes{}, Bytes{}, Bytes{}});
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.addIpRange(protocol::ordinaryRange()));
    EXPECT_TRUE(client.updateIpRange(protocol::ordinaryRange()));
    EXPECT_TRUE(client.deleteIpRange("i1"));
    EXPECT_TRUE(client.setIpRangeActive("i1", true));
    EXPECT_TRUE(client.setIpRangeActive("i1", false));

    const Bytes rest = hex("00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00");
    EXPECT_EQ(received(0), request(56, hex("01") + hex(protocol::ordinaryRangeFields)));
    EXPECT_EQ(received(1), request(56, hex("02") + hex(protocol::ordinaryRangeFields)));
    EXPECT_EQ(received(2), request(56, hex("03 02 00 69 31 00") + rest));
    EXPECT_EQ(received(3), request(56, hex("04 02 00 69 31 01") + rest));
    EXPECT_EQ(received(4), request(56, hex("04 02 00 69 31 00") + rest));
}

TEST_F(Inventory, aNewRangeWithAllFieldsEmptyIsSentAsItStands) {
    answer({Bytes{}});

    EXPECT_TRUE(CQVXAdminClass(settings).addIpRange({}));

    EXPECT_EQ(received(), request(56, hex("01") + hex(protocol::emptyRangeFields)));
}

TEST_F(Inventory, everyCommandIsFalseAndEveryListEmptyWithoutAServer) {
    CQVXAdminClass client(settings);

    EXPECT_FALSE(client.listSchemas());
    EXPECT_EQ(client.getSchema("s1"), std::nullopt);
    EXPECT_FALSE(client.createSchema({}));
    EXPECT_FALSE(client.updateSchema({}));
    EXPECT_FALSE(client.deleteSchema("s1"));
    EXPECT_FALSE(client.searchQueues(u""));
    EXPECT_FALSE(client.listInventoryReports());
    EXPECT_FALSE(client.createInventoryReport({}));
    EXPECT_FALSE(client.deleteInventoryReport("r1"));
    EXPECT_FALSE(client.listInventoryModels(0, "r1"));
    EXPECT_FALSE(client.listInventoryPrinters(0, "r1"));
    EXPECT_FALSE(client.listIpRanges());
    EXPECT_FALSE(client.getIpRange("i1"));
    EXPECT_FALSE(client.addIpRange({}));
    EXPECT_FALSE(client.updateIpRange({}));
    EXPECT_FALSE(client.deleteIpRange("i1"));
    EXPECT_FALSE(client.setIpRangeActive("i1", true));

    EXPECT_TRUE(client.schemas().empty() && client.foundQueues().empty() && client.inventoryReports().empty() &&
                client.inventoryModels().empty() && client.inventoryPrinters().empty() && client.ipRanges().empty());
    EXPECT_EQ(observer.ended.size(), 17U);
}

TEST_F(Inventory, aListThatEndsEarlyThrowsAndIsEmpty) {
    const auto cut = [](const char* fields) {
        return frame({dataMessage(hex("02 00"))}) + frame({dataMessage(hex(fields))}) + frame({});
    };
    const Bytes none = frame({dataMessage(hex("02 00"))}) + frame({});
    answer({none, none, none, cut(emptyReportFields), cut(emptyModelFields), cut(emptyFoundFields)});
    CQVXAdminClass client(settings);

    EXPECT_EQ(thrownBy([&] { client.listSchemas(); }), "failed to get message");
    EXPECT_EQ(thrownBy([&] { client.searchQueues(u""); }), "failed to get message");
    EXPECT_EQ(thrownBy([&] { client.listIpRanges(); }), "failed to get message");
    EXPECT_EQ(thrownBy([&] { client.listInventoryReports(); }), "failed to get message");
    EXPECT_EQ(thrownBy([&] { client.listInventoryModels(0, "r1"); }), "failed to get message");
    EXPECT_EQ(thrownBy([&] { client.listInventoryPrinters(0, "r1"); }), "failed to get message");

    EXPECT_TRUE(client.schemas().empty() && client.foundQueues().empty() && client.ipRanges().empty() &&
                client.inventoryReports().empty() && client.inventoryModels().empty() &&
                client.inventoryPrinters().empty());
}

} // namespace
} // namespace client
