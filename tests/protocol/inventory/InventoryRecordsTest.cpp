#include "protocol/inventory/InventoryRows.h"
#include "tests/protocol/RecordBytes.h"
#include "tests/protocol/inventory/InventoryRecordBytes.h"

#include <gtest/gtest.h>

namespace protocol {
namespace {

// Checks that the record is written as these fields after the message header, and read back.
template <Record R>
void expectBothWays(const R& record, const support::Bytes& fields) {
    EXPECT_EQ(hexOf(record), support::toHex(support::dataMessage(fields)));
    EXPECT_EQ(fromFields<R>(fields), record);
    EXPECT_EQ(fromFields<R>(fields + support::hex("01 02 03")), record); // what a newer peer adds is left unread
}

template <Record R>
void expectBothWays(const R& record, const char* fields) {
    expectBothWays(record, support::hex(fields));
}

// What becomes of a text beyond the basic plane when it is written and read back.
const wire::WideString face = u"\U0001F600";
const wire::WideString movedFace = u"\U0001FE00";

template <Record R>
R readAgain(const R& record) {
    const auto message = makeDataMessage(record);
    return fromFields<R>(support::Bytes(message->bytes().begin() + 5, message->bytes().end()));
}

TEST(SchemaRecord, travelsFromTheCreatorToTheFlag) {
    expectBothWays(ordinarySchema(), ordinarySchemaFields);
    EXPECT_EQ(hexOf(ordinarySchema()).substr(0, 14), "01 4A 00 00 00");
}

TEST(SchemaRecord, anEmptyOneSendsAllItsFields) {
    expectBothWays(SchemaRecord{}, emptySchemaFields);
}

TEST(SchemaRecord, anyNonZeroByteOfTheFlagIsAYes) {
    support::Bytes fields = support::hex(emptySchemaFields);
    fields.back() = 0x31;
    EXPECT_TRUE(fromFields<SchemaRecord>(fields).planFlag);
}

TEST(SchemaRecord, textOutsideTheBasicPlaneMoves) {
    SchemaRecord record;
    record.creator = record.newPrinterName = record.oldPrinterName = record.oldModelName = record.schemaName = face;
    SchemaRecord moved;
    moved.creator = moved.newPrinterName = moved.oldPrinterName = moved.oldModelName = moved.schemaName = movedFace;
    EXPECT_EQ(readAgain(record), moved);
}

TEST(SchemaRecord, theLongestTextsAreReadBack) {
    SchemaRecord record;
    record.oldIp = std::string(65535, '1');
    record.schemaName = wire::WideString(32767, u'n');
    expectBothWays(record, support::hex("00 00 00 00 00 00 00 00 00 00 FF FF") + repeated(65535, "31") +
                               support::hex("00 00 00 00 00 00 00 00 FE FF") + repeated(32767, "6E 00") +
                               support::hex("00 00 00 00 00"));
}

TEST(SchemaRecord, aTextOfAnOddCountLosesItsLastByte) {
    support::Bytes fields = support::hex("03 00 41 00 42");
    const support::Bytes empty = support::hex(emptySchemaFields);
    fields.insert(fields.end(), empty.begin() + 2, empty.end());
    EXPECT_EQ(fromFields<SchemaRecord>(fields).creator, u"A");
}

TEST(InventoryReportRecord, isItsIdFiveTextsAndItsType) {
    expectBothWays(ordinaryReport(), ordinaryReportFields);
    expectBothWays(InventoryReportRecord{}, "00 00 00 00 00 00 00 00 00 00 00 00 00 00");
}

TEST(InventoryReportRecord, textOutsideTheBasicPlaneMovesAndAnOddCountLosesItsLastByte) {
    InventoryReportRecord record;
    record.reportDate = record.reportUser = record.reportName = record.comment = record.ipScope = face;
    InventoryReportRecord moved;
    moved.reportDate = moved.reportUser = moved.reportName = moved.comment = moved.ipScope = movedFace;
    EXPECT_EQ(readAgain(record), moved);
    EXPECT_EQ(fromFields<InventoryReportRecord>("00 00 00 00 00 00 03 00 41 00 42 00 00 00 00 00 00").reportName, u"A");
}

TEST(InventoryReportRecord, theLongestTextIsReadBack) {
    InventoryReportRecord record;
    record.comment = wire::WideString(32767, u'c');
    expectBothWays(record, support::hex("00 00 00 00 00 00 00 00 FE FF") + repeated(32767, "63 00") +
                               support::hex("00 00 00 00"));
}

TEST(InventoryPrinterRecord, hasSixteenFields) {
    expectBothWays(ordinaryFound(), ordinaryFoundFields);
    EXPECT_EQ(layoutOf<InventoryPrinterRecord>.fields.size(), 16U);
}

TEST(InventoryPrinterRecord, withoutAMatchItsPrinterAndQueueAreEmpty) {
    const auto record = fromFields<InventoryPrinterRecord>("02 00 65 31 00 00 00 00 00 00 00 00 00 00 00 00 00 00"
                                                           "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00");
    InventoryPrinterRecord expected;
    expected.entryId = "e1";
    EXPECT_EQ(record, expected);
    EXPECT_EQ(record.mappedPrinterName + record.mappedQueueName, u"");
    EXPECT_EQ(record.mappedPrinterId + record.mappedQueueId, "");
}

TEST(InventoryPrinterRecord, textOutsideTheBasicPlaneMovesInEveryWideField) {
    InventoryPrinterRecord record;
    InventoryPrinterRecord moved;
    for (const auto member : {&InventoryPrinterRecord::windowsName, &InventoryPrinterRecord::location,
                              &InventoryPrinterRecord::comment, &InventoryPrinterRecord::model,
                              &InventoryPrinterRecord::mappedPrinterName, &InventoryPrinterRecord::mappedQueueName,
                              &InventoryPrinterRecord::workstation, &InventoryPrinterRecord::migrationPlan,
                              &InventoryPrinterRecord::migrationAction, &InventoryPrinterRecord::spare}) {
        record.*member = face;
        moved.*member = movedFace;
    }
    EXPECT_EQ(readAgain(record), moved);
}

TEST(InventoryPrinterRecord, theLongestTextsAreReadBackAndAnOddCountLosesItsLastByte) {
    InventoryPrinterRecord record;
    record.printerPort = std::string(65535, 'p');
    record.spare = wire::WideString(1, u's');
    expectBothWays(record, support::hex("00 00 00 00 00 00 FF FF") + repeated(65535, "70") +
                               support::hex("00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00"
                                            "02 00 73 00"));
    EXPECT_EQ(fromFields<InventoryPrinterRecord>("00 00 05 00 41 00 42 00 43 00 00 00 00 00 00 00 00 00 00 00 00 00 00"
                                                 "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00")
                  .windowsName,
              u"AB");
}

TEST(InventoryModelRecord, isNameTwoAnswersTwoNumbersAndId) {
    expectBothWays(ordinaryModel(), ordinaryModelFields);
    expectBothWays(InventoryModelRecord{}, "00 00 00 00 00 00 00 00 00 00 00 00 00 00");
}

TEST(InventoryModelRecord, textOutsideTheBasicPlaneMovesAndTheLongestIsReadBack) {
    InventoryModelRecord record;
    record.modelName = face;
    EXPECT_EQ(readAgain(record).modelName, movedFace);
    record.modelName = wire::WideString(32767, u'm');
    expectBothWays(record, support::hex("FE FF") + repeated(32767, "6D 00") + support::hex("00 00 00 00 00 00") +
                               support::hex("00 00 00 00 00 00"));
    EXPECT_EQ(fromFields<InventoryModelRecord>("01 00 41 31 30 00 00 00 00 00 00 00 00 00 00").modelExists, true);
}

TEST(IpRangeRecord, hasThirteenFields) {
    expectBothWays(ordinaryRange(), ordinaryRangeFields);
    EXPECT_EQ(layoutOf<IpRangeRecord>.fields.size(), 13U);
    expectBothWays(IpRangeRecord{}, emptyRangeFields);
}

TEST(IpRangeRecord, textOutsideTheBasicPlaneMovesAndAnOddCountLosesItsLastByte) {
    IpRangeRecord record;
    record.name = record.comment = record.startIp = record.endIp = record.creator = face;
    record.rangeText1 = record.rangeText3 = face;
    IpRangeRecord moved;
    moved.name = moved.comment = moved.startIp = moved.endIp = moved.creator = movedFace;
    moved.rangeText1 = moved.rangeText3 = movedFace;
    EXPECT_EQ(readAgain(record), moved);
    support::Bytes fields = support::hex("00 00 00 03 00 41 00 42");
    const support::Bytes empty = support::hex(emptyRangeFields);
    fields.insert(fields.end(), empty.begin() + 5, empty.end());
    EXPECT_EQ(fromFields<IpRangeRecord>(fields).name, u"A");
}

TEST(IpRangeRecord, theLongestTextsAreReadBack) {
    IpRangeRecord record;
    record.rangeText2 = std::string(65535, 't');
    expectBothWays(record, support::hex("00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00"
                                        "FF FF") +
                               repeated(65535, "74") + support::hex("00 00"));
}

TEST(FoundQueueRecord, isIdAndName) {
    expectBothWays(FoundQueueRecord{.queueId = "q1", .queueName = u"Q"}, "02 00 71 31 02 00 51 00");
    expectBothWays(FoundQueueRecord{}, "00 00 00 00");
    EXPECT_EQ(readAgain(FoundQueueRecord{.queueId = {}, .queueName = face}).queueName, movedFace);
    EXPECT_EQ(fromFields<FoundQueueRecord>("00 00 03 00 51 00 52").queueName, u"Q");
    expectBothWays(FoundQueueRecord{.queueId = {}, .queueName = wire::WideString(32767, u'q')},
                   support::hex("00 00 FE FF") + repeated(32767, "71 00"));
}

TEST(ListSchemasRequest, isTheIdAndThenAWideKind) {
    expectBothWays(ListSchemasRequest{.id = "s1", .listKind = 1}, "02 00 73 31 01 00 00 00");
    expectBothWays(ListSchemasRequest{}, "00 00 00 00 00 00");
}

TEST(ChangeSchemaRequest, isTheOperationAndThenThePlan) {
    for (const auto operation : ChangeSchemaRequest::actions) {
        expectBothWays(ChangeSchemaRequest{.operation = operation, .schema = ordinarySchema()},
                       support::Bytes{static_cast<std::uint8_t>(operation)} + support::hex(ordinarySchemaFields));
    }
}

TEST(ChangeSchemaRequest, aDeletedOneIsEmptyButForItsId) {
    ChangeSchemaRequest request{.operation = SchemaOperation::remove, .schema = {}};
    request.schema.schemaId = "s1";
    EXPECT_EQ(hexOf(request), tidy("01 23 00 00 00  04 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00"
                                   "02 00 73 31 00 00 00 00 00 00 00"));
}

TEST(SearchQueuesRequest, isThePattern) {
    expectBothWays(SearchQueuesRequest{.pattern = u"a*"}, "04 00 61 00 2A 00");
    expectBothWays(SearchQueuesRequest{}, "00 00");
}

TEST(ListInventoryReportsRequest, hasNoFields) {
    EXPECT_TRUE(layoutOf<ListInventoryReportsRequest>.fields.empty());
}

TEST(CreateInventoryReportRequest, isUserNameCommentPeriodScopeAndType) {
    expectBothWays(CreateInventoryReportRequest{.reportUser = u"eva",
                                                .reportName = u"May",
                                                .comment = u"c",
                                                .dateFrom = u"2014-03-05 00:00:00",
                                                .dateTo = u"x",
                                                .ipScope = "10.*",
                                                .reportType = 2},
                   "06 00 65 00 76 00 61 00  06 00 4D 00 61 00 79 00  02 00 63 00"
                   "26 00 32 00 30 00 31 00 34 00 2D 00 30 00 33 00 2D 00 30 00 35 00 20 00 30 00 30 00 3A 00"
                   "30 00 30 00 3A 00 30 00 30 00  02 00 78 00  04 00 31 30 2E 2A  02 00");
    expectBothWays(CreateInventoryReportRequest{}, "00 00 00 00 00 00 00 00 00 00 00 00 00 00");
}

TEST(DeleteInventoryReportRequest, isTheReport) {
    expectBothWays(DeleteInventoryReportRequest{.reportId = "r1"}, "02 00 72 31");
}

TEST(ListInventoryModelsRequest, isTheKindAndThenTheId) {
    expectBothWays(ListInventoryModelsRequest{.listKind = 2, .id = "r1"}, "02 00 02 00 72 31");
}

TEST(ListInventoryPrintersRequest, isTheKindAndThenTheId) {
    expectBothWays(ListInventoryPrintersRequest{.listKind = 4, .id = "r1"}, "04 00 02 00 72 31");
}

TEST(ListIpRangesRequest, isANarrowKindAndThenTheId) {
    expectBothWays(ListIpRangesRequest{.listKind = 2, .id = "i1"}, "02 02 00 69 31");
}

TEST(ChangeIpRangeRequest, isTheOperationAndThenTheRange) {
    for (const auto operation : ChangeIpRangeRequest::actions) {
        expectBothWays(ChangeIpRangeRequest{.operation = operation, .range = ordinaryRange()},
                       support::Bytes{static_cast<std::uint8_t>(operation)} + support::hex(ordinaryRangeFields));
    }
}

TEST(ChangeIpRangeRequest, oneThatSwitchesIsEmptyButForIdAndState) {
    ChangeIpRangeRequest request{.operation = RangeOperation::setActive, .range = {}};
    request.range.rangeId = "i1";
    request.range.active = true;
    EXPECT_EQ(hexOf(request), tidy("01 25 00 00 00  04 02 00 69 31 01 00 00 00 00 00 00 00 00 00 00 00 00 00 00"
                                   "00 00 00 00 00 00 00 00 00 00 00 00"));
}

TEST(InventoryRows, eachOneTellsWhatItAsksAndLists) {
    for (const Command& command : inventoryRows) {
        EXPECT_NE(command.request, nullptr) << command.opcode;
        EXPECT_EQ(command.replyRecord != nullptr, command.reply == ReplyShape::list) << command.opcode;
        EXPECT_FALSE(command.closes) << command.opcode;
    }
}

} // namespace
} // namespace protocol
