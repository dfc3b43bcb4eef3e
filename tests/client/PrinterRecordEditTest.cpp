#include "client/PrinterRecordEdit.h"

#include "tests/client/ClientTest.h"
#include "tests/protocol/estate/PrinterRecordBytes.h"

namespace client {
namespace {

using protocol::ordinaryPrinter;
using protocol::ordinaryPrinterFields;

class PrinterEdit : public ClientTest {
protected:
    static Bytes loadedReply() { return countedList({ordinaryPrinterFields()}); }
    static Bytes accepted() { return frame({dataMessage(hex("00 00 00 00 00 00 00 00"))}); }
    static Bytes refused() { return frame({dataMessage(hex("02 00 4E 00 02 00 54 00 30 00 00 00"))}); }
    static Bytes createdAs(const char* idField) {
        return frame({dataMessage(hex("00 00 00 00 00 00 00 00") + hex(idField))});
    }

    std::string thrownByNew(std::int32_t regionId, const char* physicalPrinterId, std::uint16_t recordType) {
        return thrownBy([&] { PrinterRecordEdit(regionId, physicalPrinterId, recordType, settings); });
    }
};

TEST_F(PrinterEdit, aNewPrinterNeedsARegionAndNoPhysicalPrinter) {
    EXPECT_EQ(thrownByNew(0, "", 0), "Trying to create a printer without region");
    EXPECT_EQ(thrownByNew(12, "p1", 0), "Trying to create a printer without region");
    EXPECT_EQ(thrownByNew(12, "", 0), "nothing");
}

TEST_F(PrinterEdit, aNewQueueNeedsAPhysicalPrinter) {
    EXPECT_EQ(thrownByNew(12, "", 1), "Trying to create a queue without physical printer");
    EXPECT_EQ(thrownByNew(0, "p1", 1), "nothing");
}

TEST_F(PrinterEdit, aNewFollowQueueNeedsNeither) {
    const PrinterRecordEdit edit(12, "", 3, settings);

    EXPECT_EQ(edit.record().recordType, 3);
    EXPECT_EQ(edit.record().regionId, 12);
    EXPECT_FALSE(edit.exists());
    EXPECT_EQ(edit.spare, 0x7FFFU);
}

TEST_F(PrinterEdit, theTypesFiveAndFourAreStoredAsZeroAndOne) {
    EXPECT_EQ(PrinterRecordEdit(0, "", 5, settings).record().recordType, 0);
    EXPECT_EQ(PrinterRecordEdit(0, "", 4, settings).record().recordType, 1);
}

TEST_F(PrinterEdit, anEmptyIdThrowsNoPrinterId) {
    EXPECT_EQ(thrownBy([&] { PrinterRecordEdit("", 5, settings); }), "No printer ID");
}

TEST_F(PrinterEdit, anIdThatTheServerDoesNotKnowThrows) {
    answer({countedList({})});

    EXPECT_EQ(thrownBy([&] { PrinterRecordEdit("p1", 5, settings); }), "No such printer");
}

TEST_F(PrinterEdit, loadsInTheModeOfTheType) {
    struct Case {
        std::uint16_t type;
        const char* mode;
        std::uint16_t storedType;
    };
    const Case cases[] = {{4, "04 00", 1}, {5, "05 00", 0}, {7, "05 00", 7},
                          {8, "08 00", 8}, {9, "09 00", 9}, {10, "0A 00", 10}};
    answer(std::vector<Bytes>(std::size(cases), loadedReply()));

    for (std::size_t index = 0; index < std::size(cases); ++index) {
        SCOPED_TRACE(cases[index].type);
        const PrinterRecordEdit edit("p1", cases[index].type, settings);
        EXPECT_TRUE(edit.exists());
        EXPECT_EQ(edit.record().recordType, cases[index].storedType);
        EXPECT_EQ(edit.record().name, u"Ahrn");
        EXPECT_EQ(edit.spare, 0x7FFFU);
    }

    for (std::size_t index = 0; index < std::size(cases); ++index) {
        EXPECT_EQ(received(index), request(6, hex("02 00 70 31 00 00 00 00") + hex(cases[index].mode)));
    }
}

TEST_F(PrinterEdit, anUpdateWithNoDirtyFlagSendsNothing) {
    answer({loadedReply()});
    PrinterRecordEdit edit("p1", 4, settings);

    EXPECT_TRUE(edit.save());

    EXPECT_EQ(server->finish(), "");
    EXPECT_EQ(observer.ended.size(), 1U); // the loading
}

TEST_F(PrinterEdit, anEditOfThreeFieldsSendsThreeIdenticalUpdates) {
    answer({loadedReply(), accepted(), accepted(), accepted()});
    PrinterRecordEdit edit("p1", 4, settings);
    edit.setAccounting(0);
    edit.setIp("10.0.0.8");
    edit.setLocation(u"Hell");

    EXPECT_TRUE(edit.save());

    Bytes fields = ordinaryPrinterFields();
    fields[9] = 0x38;                 // the ip's last digit
    fields[64] = 0x65;                // the location's second letter
    fields[fields.size() - 5] = 0x00; // accounting
    const Bytes expected = request(10, fields, 2);
    EXPECT_EQ(received(1), expected);
    EXPECT_EQ(received(2), expected);
    EXPECT_EQ(received(3), expected);
}

TEST_F(PrinterEdit, settingAFieldToWhatItIsStillSendsAnUpdate) {
    answer({loadedReply(), accepted()});
    PrinterRecordEdit edit("p1", 4, settings);
    edit.setName(u"Ahrn");

    EXPECT_TRUE(edit.save());

    EXPECT_EQ(received(1), request(10, ordinaryPrinterFields(), 2));
}

TEST_F(PrinterEdit, everySetterSetsItsFieldAndMakesOneUpdate) {
    constexpr std::size_t setters = 21;
    std::vector<Bytes> replies(setters + 1, accepted());
    replies[0] = loadedReply();
    answer(replies);
    PrinterRecordEdit edit("p1", 4, settings);
    edit.setIp("i");
    edit.setPort(9100);
    edit.setLprQueueName(u"l");
    edit.setComment(u"c");
    edit.setLocation(u"o");
    edit.setModelId("m");
    edit.setSnmpCommunity(u"s");
    edit.setSnmpIndex(2);
    edit.setName(u"n");
    edit.setTimeToLive(48);
    edit.setQueueState('2');
    edit.setLocalDriverHandling(true);
    edit.setLocalConfigHandling(false);
    edit.setSnmpActive(false);
    edit.setAlarmProgramId("a");
    edit.setFpBoxIp("f");
    edit.setMailMessage(u"e");
    edit.setInvisible(0);
    edit.setCounterProgramId("r");
    edit.setAccounting(0);
    edit.setDoNotAutoCreateQueue(1);

    EXPECT_TRUE(edit.save());

    EXPECT_EQ(observer.ended.size(), setters + 1);
    protocol::PrinterRecord expected = ordinaryPrinter();
    expected.ip = "i";
    expected.port = 9100;
    expected.lprQueueName = u"l";
    expected.comment = u"c";
    expected.location = u"o";
    expected.modelId = "m";
    expected.snmpCommunity = u"s";
    expected.snmpIndex = 2;
    expected.name = u"n";
    expected.timeToLive = 48;
    expected.queueState = '2';
    expected.localDriverHandling = true;
    expected.localConfigHandling = false;
    expected.snmpActive = false;
    expected.alarmProgramId = "a";
    expected.fpBoxIp = "f";
    expected.mailMessage = u"e";
    expected.invisible = 0;
    expected.counterProgramId = "r";
    expected.accounting = 0;
    expected.doNotAutoCreateQueue = 1;
    EXPECT_EQ(edit.record(), expected);
}

TEST_F(PrinterEdit, fieldsThatTheConsoleDoesNotKnowKeepTheirValuesFromLoadToSave) {
    answer({loadedReply(), accepted()});
    PrinterRecordEdit edit("p1", 4, settings);
    edit.setComment(u"\u00E9");

    EXPECT_TRUE(edit.save());

    EXPECT_EQ(received(1), request(10, ordinaryPrinterFields(), 2)); // auxId, auxByte, auxText and auxKey among them
}

TEST_F(PrinterEdit, aRefusedUpdateIsShownEachTimeAndSaveIsFalse) {
    answer({loadedReply(), refused(), refused()});
    PrinterRecordEdit edit("p1", 4, settings);
    edit.setName(u"a");
    edit.setIp("b");

    EXPECT_FALSE(edit.save());

    const RecordingMessages::Box box{u"N", u"T", 0x30};
    EXPECT_EQ(messages.boxes, (std::vector{box, box}));
}

TEST_F(PrinterEdit, aNewQueueIsCreatedOnItsPrinterAndKeepsItsNewId) {
    answer({createdAs("03 00 6E 65 77")});
    PrinterRecordEdit edit(0, "p1", 1, settings);
    edit.setName(u"q");

    EXPECT_TRUE(edit.save());

    EXPECT_EQ(edit.record().id, "new");
    EXPECT_EQ(received(), request(9, "02 00 70 31  00 00 00 00 00 00  02 00 71 00"
                                     "00 00 00 00 00 00 00 00 00 00 00 00  03 02 00 00 00 00 00 00 00 00 30 30 30"
                                     "01 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00"));
    EXPECT_TRUE(messages.boxes.empty());
}

TEST_F(PrinterEdit, aNewQueueThatIsSavedAgainIsNotCreatedASecondTime) {
    answer({createdAs("03 00 6E 65 77"), accepted()});
    PrinterRecordEdit edit(0, "p1", 1, settings);
    edit.setName(u"q");
    EXPECT_FALSE(edit.exists());
    EXPECT_TRUE(edit.save());
    EXPECT_TRUE(edit.exists());

    EXPECT_TRUE(edit.save());
    EXPECT_EQ(observer.ended.size(), 1U); // what was set has been sent with the new record
    edit.setPort(9100);
    EXPECT_TRUE(edit.save());

    EXPECT_EQ(observer.ended.size(), 2U);
    EXPECT_EQ(observer.ended.back().opcode, 10);
}

TEST_F(PrinterEdit, aRefusedCreationCanBeTriedAgain) {
    answer({frame({dataMessage(hex("02 00 4E 00 02 00 54 00 30 00 00 00 00 00"))}), createdAs("03 00 6E 65 77")});
    PrinterRecordEdit edit(12, "", 0, settings);
    EXPECT_FALSE(edit.save());
    EXPECT_FALSE(edit.exists());

    EXPECT_TRUE(edit.save());

    EXPECT_EQ(observer.ended.back().opcode, 9);
    EXPECT_EQ(edit.record().id, "new");
}

TEST_F(PrinterEdit, aRefusedCreationIsShownAndSaveIsFalse) {
    answer({frame({dataMessage(hex("02 00 4E 00 02 00 54 00 30 00 00 00 00 00"))})});
    PrinterRecordEdit edit(12, "", 0, settings);

    EXPECT_FALSE(edit.save());

    EXPECT_EQ(messages.boxes, (std::vector<RecordingMessages::Box>{{u"N", u"T", 0x30}}));
}

TEST_F(PrinterEdit, aCopyOfAPrinterIsCreatedAsANewPrinter) {
    answer({loadedReply(), createdAs("03 00 6E 65 77")});
    PrinterRecordEdit edit("p1", 9, settings);

    EXPECT_TRUE(edit.save());

    Bytes fields = ordinaryPrinterFields();
    fields[106] = 0x00; // recordType
    EXPECT_EQ(received(1), request(9, hex("00 00") + fields));
    EXPECT_EQ(edit.record().id, "new");
    EXPECT_TRUE(edit.exists());
}

TEST_F(PrinterEdit, aCopyOfAQueueGoesOutUnderTheIdOfItsPrinter) {
    answer({loadedReply(), createdAs("03 00 6E 65 77")});
    PrinterRecordEdit edit("q1", 10, settings);
    edit.setPhysicalPrinterId("0f8e2a64-5b1d-4f0e-9c37-6a2d51b7e481");

    EXPECT_TRUE(edit.save());

    Bytes fields = ordinaryPrinterFields(); // a queue already
    fields[49] = 0x31;                      // the id's last digit
    const Bytes printerId(fields.begin() + 12, fields.begin() + 50);
    EXPECT_EQ(received(1), request(9, printerId + fields));
}

TEST_F(PrinterEdit, withoutAServerNothingIsLoadedOrSaved) {
    PrinterRecordEdit edit(12, "", 0, settings);

    EXPECT_EQ(thrownBy([&] { edit.save(); }), "Failed to connect to server");
    EXPECT_EQ(thrownBy([&] { PrinterRecordEdit("p1", 5, settings); }), "Failed to connect to server");
}

} // namespace
} // namespace client
