#include "protocol/estate/Printer.h"
#include "tests/protocol/RecordBytes.h"
#include "tests/protocol/estate/PrinterRecordBytes.h"

#include <gtest/gtest.h>

namespace protocol {
namespace {

// All 32 fields of a new record: every text is empty and every number has its initial value.
constexpr const char* emptyPrinterFields = "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00"
                                           "03 02 00 00 00 00 00 00 00 00 30 30 30 00 00 00 00 00 00 00"
                                           "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00";

TEST(PrinterRecord, anOrdinaryOneIsWrittenInWireOrder) {
    EXPECT_EQ(hexOf(ordinaryPrinter()), support::toHex(support::dataMessage(ordinaryPrinterFields())));
}

TEST(PrinterRecord, anOrdinaryOneIsReadBack) {
    EXPECT_EQ(fromFields<PrinterRecord>(ordinaryPrinterFields()), ordinaryPrinter());
}

TEST(PrinterRecord, anEmptyOneSendsAllThirtyTwoFields) {
    EXPECT_EQ(hexOf(PrinterRecord{}), support::toHex(support::dataMessage(support::hex(emptyPrinterFields))));
    EXPECT_EQ(fromFields<PrinterRecord>(emptyPrinterFields), PrinterRecord{});
}

TEST(PrinterRecord, textOutsideTheBasicPlaneMovesInEveryWideField) {
    PrinterRecord record;
    record.name = record.location = record.comment = record.modelName = record.lprQueueName = u"\U0001F600";
    record.auxText = record.snmpCommunity = record.mailMessage = u"\U0001F600";
    PrinterRecord moved;
    moved.name = moved.location = moved.comment = moved.modelName = moved.lprQueueName = u"\U0001FE00";
    moved.auxText = moved.snmpCommunity = moved.mailMessage = u"\U0001FE00";

    auto message = makeDataMessage(record);
    const support::Bytes bytes(message->bytes().begin() + 5, message->bytes().end());

    EXPECT_EQ(fromFields<PrinterRecord>(bytes), moved); // once on the way out and once on the way in
}

TEST(PrinterRecord, theLongestTextsAreReadBack) {
    PrinterRecord record;
    record.ip = std::string(65535, '1');
    record.auxKey = std::string(65535, 'k');
    const support::Bytes empty = support::hex(emptyPrinterFields);
    const support::Bytes middle(empty.begin() + 2, empty.end() - 2);
    const support::Bytes fields =
        support::hex("FF FF") + repeated(65535, "31") + middle + support::hex("FF FF") + repeated(65535, "6B");

    EXPECT_EQ(fromFields<PrinterRecord>(fields), record);
    EXPECT_EQ(hexOf(record), support::toHex(support::dataMessage(fields)));
}

TEST(PrinterRecord, aTextOfAnOddCountLosesItsLastByte) {
    support::Bytes fields = support::hex("00 00 00 00 00 00  05 00 41 00 42 00 43");
    const support::Bytes empty = support::hex(emptyPrinterFields);
    fields.insert(fields.end(), empty.begin() + 8, empty.end());

    EXPECT_EQ(fromFields<PrinterRecord>(fields).name, u"AB");
    EXPECT_EQ(fromFields<PrinterRecord>(fields).port, 515U);
}

TEST(PrinterRecord, whatAServerAddsBehindIsLeftUnread) {
    EXPECT_EQ(fromFields<PrinterRecord>(ordinaryPrinterFields() + support::hex("01 02 03")), ordinaryPrinter());
}

TEST(PrinterRecord, anyNonZeroByteIsAYes) {
    support::Bytes fields = support::hex(emptyPrinterFields);
    fields[40] = 0x31; // snmpActive

    EXPECT_TRUE(fromFields<PrinterRecord>(fields).snmpActive);
}

TEST(PrinterRecord, threeInAccountingReadsBackAsExternal) {
    support::Bytes fields = support::hex(emptyPrinterFields);
    fields[fields.size() - 4] = 3;

    EXPECT_EQ(accounting::nameOf(fromFields<PrinterRecord>(fields).accounting), u"External");
}

TEST(PrinterRecord, externalIsStoredAsThreeAndInternalAsZero) {
    EXPECT_EQ(accounting::valueOf(u"External"), 3);
    EXPECT_EQ(accounting::valueOf(u"Internal"), 0);
}

TEST(PrinterRecord, oneToThreeInAccountingAreExternalAndAllElseIsInternal) {
    for (const int value : {1, 2, 3}) {
        EXPECT_TRUE(accounting::isExternal(static_cast<std::uint8_t>(value))) << value;
    }
    for (const int value : {0, 4, 0x30, 255}) {
        EXPECT_EQ(accounting::nameOf(static_cast<std::uint8_t>(value)), u"Internal") << value;
    }
}

TEST(StatusReply, isCaptionTextAndStyle) {
    const StatusReply reply{.caption = u"No", .text = u"Taken", .style = 0x30};
    const std::string fields = "04 00 4E 00 6F 00  0A 00 54 00 61 00 6B 00 65 00 6E 00  30 00 00 00";

    EXPECT_EQ(hexOf(reply), tidy("01 1B 00 00 00 " + fields));
    EXPECT_EQ(fromFields<StatusReply>(fields), reply);
    EXPECT_EQ(fromFields<StatusReply>("00 00 00 00 00 00 00 00 FF"), StatusReply{});
}

TEST(ListPrinterRecordsRequest, isPrinterRegionAndMode) {
    const ListPrinterRecordsRequest request{.printerId = "p1", .regionId = -3, .mode = 1};

    EXPECT_EQ(hexOf(request), tidy("01 0F 00 00 00  02 00 70 31  FD FF FF FF  01 00"));
    EXPECT_EQ(fromFields<ListPrinterRecordsRequest>("02 00 70 31 FD FF FF FF 01 00"), request);
    EXPECT_EQ(hexOf(ListPrinterRecordsRequest{}), tidy("01 0D 00 00 00  00 00  00 00 00 00  00 00"));
}

TEST(CreateRecordRequest, isThePhysicalPrinterAndThenTheRecord) {
    const CreateRecordRequest request{.physicalPrinterId = "p1", .record = ordinaryPrinter()};
    const support::Bytes fields = support::hex("02 00 70 31") + ordinaryPrinterFields();

    EXPECT_EQ(hexOf(request), support::toHex(support::dataMessage(fields)));
    EXPECT_EQ(fromFields<CreateRecordRequest>(fields), request);
}

TEST(CreateRecordReply, isTheStatusAndThenTheNewId) {
    const CreateRecordReply reply{.status = {}, .id = "new"};

    EXPECT_EQ(hexOf(reply), tidy("01 12 00 00 00  00 00 00 00 00 00 00 00  03 00 6E 65 77"));
    EXPECT_EQ(fromFields<CreateRecordReply>("00 00 00 00 00 00 00 00 03 00 6E 65 77"), reply);
}

TEST(UpdateRecordRequest, isTheRecord) {
    EXPECT_EQ(hexOf(UpdateRecordRequest{.record = ordinaryPrinter()}),
              support::toHex(support::dataMessage(ordinaryPrinterFields())));
}

TEST(MovePrinterRequest, isPrinterAndNewRegion) {
    const MovePrinterRequest request{.printerId = "p1", .regionId = 12};

    EXPECT_EQ(hexOf(request), tidy("01 0D 00 00 00  02 00 70 31  0C 00 00 00"));
    EXPECT_EQ(fromFields<MovePrinterRequest>("02 00 70 31 0C 00 00 00"), request);
}

TEST(DeleteRecordRequest, isTypeAndId) {
    const DeleteRecordRequest request{.type = protocol::RecordDeletion::queue, .id = "q1"};

    EXPECT_EQ(hexOf(request), tidy("01 0A 00 00 00  02  02 00 71 31"));
    EXPECT_EQ(fromFields<DeleteRecordRequest>("02 02 00 71 31"), request);
}

TEST(SetStatusOctetOrderRequest, isOrderAndThenPrinter) {
    const SetStatusOctetOrderRequest request{.order = 2, .printerId = "p1"};

    EXPECT_EQ(hexOf(request), tidy("01 0D 00 00 00  02 00 00 00  02 00 70 31"));
    EXPECT_EQ(fromFields<SetStatusOctetOrderRequest>("02 00 00 00 02 00 70 31"), request);
}

TEST(GetStatusOctetOrderRequest, isThePrinter) {
    EXPECT_EQ(hexOf(GetStatusOctetOrderRequest{.printerId = "p1"}), tidy("01 09 00 00 00  02 00 70 31"));
    EXPECT_EQ(fromFields<GetStatusOctetOrderRequest>("02 00 70 31").printerId, "p1");
}

TEST(GetStatusOctetOrderReply, isTheOrder) {
    EXPECT_EQ(hexOf(GetStatusOctetOrderReply{.order = 0x80000001}), tidy("01 09 00 00 00  01 00 00 80"));
    EXPECT_EQ(fromFields<GetStatusOctetOrderReply>("01 00 00 80").order, 0x80000001U);
}

} // namespace
} // namespace protocol
