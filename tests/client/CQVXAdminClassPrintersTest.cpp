#include "tests/client/ClientTest.h"
#include "tests/protocol/estate/PrinterRecordBytes.h"

namespace client {
namespace {

using protocol::PrinterRecord;

class Printers : public ClientTest {
protected:
    // The fields of a record of which only the name matters.
    static Bytes named(char letter) {
        Bytes fields = protocol::ordinaryPrinterFields();
        fields[52] = static_cast<std::uint8_t>(letter);
        return fields;
    }

    std::int16_t count = -1;
};

TEST_F(Printers, ofARegionAreAskedForInModeZero) {
    answer({countedList({})});

    EXPECT_TRUE(CQVXAdminClass(settings).getPrintersInRegion(12, count));

    EXPECT_EQ(received(), request(6, "00 00 0C 00 00 00 00 00"));
    EXPECT_EQ(count, 0);
}

TEST_F(Printers, queuesOfAPrinterAreAskedForInModeOneWithoutARegion) {
    answer({countedList({})});

    EXPECT_TRUE(CQVXAdminClass(settings).getQueuesOfPrinter("p1", count));

    EXPECT_EQ(received(), request(6, "02 00 70 31 00 00 00 00 01 00"));
}

TEST_F(Printers, queuesOfARegionAreAskedForInModeOneWithoutAPrinter) {
    answer({countedList({})});

    EXPECT_TRUE(CQVXAdminClass(settings).getQueuesInRegion(12, count));

    EXPECT_EQ(received(), request(6, "00 00 0C 00 00 00 01 00"));
}

TEST_F(Printers, followQueuesOfARegionAreAskedForInModeThree) {
    answer({countedList({})});

    EXPECT_TRUE(CQVXAdminClass(settings).getFollowQueuesInRegion(12, count));

    EXPECT_EQ(received(), request(6, "00 00 0C 00 00 00 03 00"));
}

TEST_F(Printers, aQueueIsAskedForInModeFour) {
    answer({countedList({})});

    EXPECT_TRUE(CQVXAdminClass(settings).getQueueById("q1", count));

    EXPECT_EQ(received(), request(6, "02 00 71 31 00 00 00 00 04 00"));
}

TEST_F(Printers, aPrinterIsAskedForInModeFive) {
    answer({countedList({})});

    EXPECT_TRUE(CQVXAdminClass(settings).getPrinterById("p1", count));

    EXPECT_EQ(received(), request(6, "02 00 70 31 00 00 00 00 05 00"));
}

TEST_F(Printers, localOnesOfARegionAreAskedForInModeSix) {
    answer({countedList({})});

    EXPECT_TRUE(CQVXAdminClass(settings).getLocalPrintersInRegion(-1, count));

    EXPECT_EQ(received(), request(6, "00 00 FF FF FF FF 06 00"));
}

TEST_F(Printers, otherRowsAreAskedForInTheirOwnModes) {
    answer({countedList({}), countedList({}), countedList({})});
    CQVXAdminClass client(settings);

    for (const std::uint16_t mode : {std::uint16_t{8}, std::uint16_t{9}, std::uint16_t{10}}) {
        EXPECT_TRUE(client.getRecordById("x", mode, count));
    }

    EXPECT_EQ(received(0), request(6, "01 00 78 00 00 00 00 08 00"));
    EXPECT_EQ(received(1), request(6, "01 00 78 00 00 00 00 09 00"));
    EXPECT_EQ(received(2), request(6, "01 00 78 00 00 00 00 0A 00"));
}

TEST_F(Printers, areReadFieldByField) {
    answer({countedList({protocol::ordinaryPrinterFields()})});
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.getPrintersInRegion(12, count));

    EXPECT_EQ(count, 1);
    EXPECT_EQ(client.printerRecords(), std::vector<PrinterRecord>{protocol::ordinaryPrinter()});
}

TEST_F(Printers, areHandedOutInTheReverseOfTheWireOrder) {
    answer({countedList({named('A'), named('B'), named('C')})});
    CQVXAdminClass client(settings);
    client.getPrintersInRegion(12, count);

    wire::WideString seen;
    for (PrinterRecord record; client.nextPrinterRecord(record);) {
        seen.push_back(record.name.at(0));
    }

    EXPECT_EQ(count, 3);
    EXPECT_EQ(seen, u"CBA");
}

TEST_F(Printers, theCursorStopsAtZero) {
    answer({countedList({named('A')})});
    CQVXAdminClass client(settings);
    client.getPrintersInRegion(12, count);
    PrinterRecord record;

    EXPECT_TRUE(client.nextPrinterRecord(record));
    EXPECT_FALSE(client.nextPrinterRecord(record));
    EXPECT_FALSE(client.nextPrinterRecord(record));
    EXPECT_EQ(record.name, u"Ahrn");
}

TEST_F(Printers, areTakenAsAWholeInWireOrder) {
    answer({countedList({named('A'), named('B')})});
    CQVXAdminClass client(settings);
    client.getPrintersInRegion(12, count);

    const auto records = client.takePrinterRecords();

    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(records[0].name, u"Ahrn");
    EXPECT_EQ(records[1].name, u"Bhrn");
    EXPECT_TRUE(client.printerRecords().empty());
}

TEST_F(Printers, aCountOfZeroIsFollowedByNoDataMessage) {
    answer({frame({dataMessage(hex("00 00"))}) + frame({dataMessage(named('A'))})});
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.getPrintersInRegion(12, count));

    EXPECT_EQ(count, 0);
    EXPECT_TRUE(client.printerRecords().empty());
}

TEST_F(Printers, aCountOf32768OrMoreIsBelowZeroAndReadsAsNone) {
    answer({frame({dataMessage(hex("00 80"))}) + frame({dataMessage(named('A'))})});
    CQVXAdminClass client(settings);
    PrinterRecord record;

    EXPECT_TRUE(client.getPrintersInRegion(12, count));

    EXPECT_EQ(count, -32768);
    EXPECT_TRUE(client.printerRecords().empty());
    EXPECT_FALSE(client.nextPrinterRecord(record));
}

TEST_F(Printers, aListWithoutAServerIsFalseAndEmpty) {
    CQVXAdminClass client(settings);

    EXPECT_FALSE(client.getPrintersInRegion(12, count));

    EXPECT_EQ(count, 0);
    EXPECT_TRUE(client.printerRecords().empty());
    EXPECT_EQ(observer.ended.at(0).text, "Failed to connect to server");
    EXPECT_FALSE(observer.ended.at(0).connected);
}

TEST_F(Printers, aListThatBreaksOffHoldsWhatCameBeforeAndCountsWhatWasAnnounced) {
    const Bytes whole = countedList({named('A'), named('B')});
    serve({[whole](Connection& connection) {
        connection.expectFrame();
        connection.send({whole.begin(), whole.end() - 1});
    }});
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.getPrintersInRegion(12, count));

    EXPECT_EQ(count, 2);
    EXPECT_EQ(client.printerRecords().size(), 1U);
    EXPECT_EQ(observer.ended.at(0).outcome, CommandOutcome::failed);
    EXPECT_EQ(observer.ended.at(0).text, "The server's reply ended early");
}

TEST_F(Printers, ofAListThatAnnouncedMoreThanCameAreNotHandedOut) {
    answer({frame({dataMessage(hex("03 00"))}) + frame({dataMessage(named('A'))}) + frame({}, 1)});
    CQVXAdminClass client(settings);
    PrinterRecord record;
    client.getPrintersInRegion(12, count);

    EXPECT_EQ(count, 3);
    EXPECT_EQ(thrownBy([&] { client.nextPrinterRecord(record); }), "invalid vector<T> subscript");
}

TEST_F(Printers, aListWithoutACountIsFalse) {
    serve({[](Connection& connection) { connection.expectFrame(); }});
    CQVXAdminClass client(settings);

    EXPECT_FALSE(client.getPrintersInRegion(12, count));

    EXPECT_EQ(count, 0);
    EXPECT_EQ(observer.ended.at(0).outcome, CommandOutcome::failed);
}

TEST_F(Printers, aRecordThatIsTooShortThrowsReadingOutsideScope) {
    answer({countedList({named('A'), hex("00 00")})});
    CQVXAdminClass client(settings);

    EXPECT_EQ(thrownBy([&] { client.getPrintersInRegion(12, count); }), "plain: Reading outside scope");
    EXPECT_EQ(count, 0);
}

TEST_F(Printers, aTrailingFieldOfANewerServerDoesNotDisturb) {
    answer({countedList({named('A') + hex("07 00 00 00"), named('B')})});
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.getPrintersInRegion(12, count));

    EXPECT_EQ(count, 2);
}

TEST_F(Printers, areCreatedWithTheirPhysicalPrinter) {
    answer({frame({dataMessage(hex("00 00 00 00 00 00 00 00 03 00 6E 65 77"))})});

    const auto reply = CQVXAdminClass(settings).createRecord("p1", protocol::ordinaryPrinter());

    EXPECT_EQ(reply.id, "new");
    EXPECT_EQ(received(), request(9, hex("02 00 70 31") + protocol::ordinaryPrinterFields()));
}

TEST_F(Printers, areUpdatedWithVersionTwo) {
    answer({frame({dataMessage(hex("02 00 4E 00 02 00 54 00 30 00 00 00"))})});

    const auto status = CQVXAdminClass(settings).updateRecord(protocol::ordinaryPrinter());

    EXPECT_EQ(status, (protocol::StatusReply{.caption = u"N", .text = u"T", .style = 0x30}));
    EXPECT_EQ(received(), request(10, protocol::ordinaryPrinterFields(), 2));
}

TEST_F(Printers, aReplyWithoutDataOnCreateOrUpdateThrowsNoDataReceivedFromServer) {
    answer({frame({}), frame({})});
    CQVXAdminClass client(settings);

    EXPECT_EQ(thrownBy([&] { static_cast<void>(client.createRecord("", {})); }), "No data received from server");
    EXPECT_EQ(thrownBy([&] { static_cast<void>(client.updateRecord({})); }), "No data received from server");
}

TEST_F(Printers, createAndUpdateWithoutAServerThrow) {
    CQVXAdminClass client(settings);

    EXPECT_EQ(thrownBy([&] { static_cast<void>(client.createRecord("", {})); }), "Failed to connect to server");
    EXPECT_EQ(thrownBy([&] { static_cast<void>(client.updateRecord({})); }), "Failed to connect to server");
}

TEST_F(Printers, areMovedAndDeleted) {
    answer({Bytes{}, Bytes{}, Bytes{}});
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.movePrinter("p1", 12));
    EXPECT_TRUE(client.deletePrinter("p1"));
    EXPECT_TRUE(client.deleteQueue("q1"));

    EXPECT_EQ(received(0), request(21, "02 00 70 31 0C 00 00 00"));
    EXPECT_EQ(received(1), request(36, "01 02 00 70 31"));
    EXPECT_EQ(received(2), request(36, "02 02 00 71 31"));
}

TEST_F(Printers, theStatusOctetOrderIsSetAndRead) {
    answer({Bytes{}, frame({dataMessage(hex("02 00 00 00"))})});
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.setStatusOctetOrder("p1", 1));
    EXPECT_EQ(client.getStatusOctetOrder("p1"), 2U);

    EXPECT_EQ(received(0), request(74, "01 00 00 00 02 00 70 31"));
    EXPECT_EQ(received(1), request(76, "02 00 70 31"));
}

TEST_F(Printers, theStatusOctetOrderIsUnknownWithoutAnAnswer) {
    serve({[](Connection& connection) { connection.expectFrame(); }});

    EXPECT_EQ(CQVXAdminClass(settings).getStatusOctetOrder("p1"), std::nullopt);
}

TEST_F(Printers, aRefusalIsShownByItsCaptionAlone) {
    const CQVXAdminClass client(settings);

    EXPECT_FALSE(client.showRefusal({.caption = u"", .text = u"text", .style = 1}));
    EXPECT_TRUE(client.showRefusal({.caption = u"caption", .text = u"", .style = 0x30}));

    EXPECT_EQ(messages.boxes, (std::vector<RecordingMessages::Box>{{u"caption", u"", 0x30}}));
}

} // namespace
} // namespace client
