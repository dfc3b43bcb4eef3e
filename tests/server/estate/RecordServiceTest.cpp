#include "server/estate/RecordService.h"

#include "server/estate/RecordTable.h"
#include "tests/server/support/TestEstate.h"

#include <gtest/gtest.h>

namespace server {
namespace {

using protocol::PrinterRecord;
using test::TestEstate;
using Names = std::vector<std::u16string>;

PrinterRecord named(const std::u16string& name, std::int32_t regionId, std::uint16_t recordType = 0) {
    PrinterRecord record;
    record.name = name;
    record.regionId = regionId;
    record.recordType = recordType;
    return record;
}

// Every field with a distinct value.
PrinterRecord fullRecord(std::int32_t regionId) {
    return {.ip = "10.1.2.3",
            .fpBoxIp = "10.9.9.9",
            .id = "looked over",
            .name = u"Name",
            .location = u"Location",
            .comment = {u'C', 0xD83D, 0xDE00},
            .modelName = u"Model",
            .modelId = "model-id",
            .auxId = "aux-id",
            .lprQueueName = u"lp",
            .port = 0xFFFFFFFF,
            .regionId = regionId,
            .jobs = 65535,
            .snmpStatus = '4',
            .printingStatus = '3',
            .queueState = '2',
            .recordType = 0,
            .auxByte = 200,
            .auxText = u"aux",
            .timeToLive = 40000,
            .snmpActive = true,
            .localDriverHandling = true,
            .localConfigHandling = true,
            .snmpIndex = 255,
            .snmpCommunity = u"public",
            .alarmProgramId = "alarm",
            .mailMessage = u"mail",
            .invisible = 1,
            .counterProgramId = "counter",
            .accounting = 3,
            .doNotAutoCreateQueue = 1,
            .auxKey = "key"};
}

// What a full record refers to, put into the database of a connection.
class References {
public:
    explicit References(sqlite3* connection) {
        Query(connection, "INSERT INTO driverBrand (id, name, nameKey) VALUES ('brand', x'4200', x'62')").execute();
        Query(connection, "INSERT INTO driverModel (id, brandId, name, nameKey) VALUES "
                          "('model-id', 'brand', x'4D006F00640065006C00', x'6D')") // "Model"
            .execute();
        Query(connection, "INSERT INTO alarmProgram (id, kind, name, comment, createdBy, creationDate, nameKey) VALUES "
                          "('alarm', 0, x'', x'', x'', x'', x'61'), ('counter', 2, x'', x'', x'', x'', x'63')")
            .execute();
    }
};

void addReferences(TestEstate& place) {
    static_cast<void>(place.connection().table<References>());
}

TEST(RecordService, aNewRecordGetsAnIdOfItsOwnAndKeepsAllOtherFields) {
    TestEstate place;
    addReferences(place);
    auto record = fullRecord(place.addRegion(u"North"));
    const auto reply = place.recordService().create({.physicalPrinterId = {}, .record = record});
    EXPECT_EQ(reply.status, protocol::StatusReply{});
    ASSERT_EQ(reply.id.size(), 36U);
    EXPECT_EQ(reply.id.find_first_not_of("0123456789abcdef-"), std::string::npos);
    record.id = reply.id;
    EXPECT_EQ(place.record(reply.id), record);
}

TEST(RecordService, aModelOrProgramThatDoesNotExistIsRefused) {
    TestEstate place;
    addReferences(place);
    const auto north = place.addRegion(u"North");
    const auto textOf = [&](std::string PrinterRecord::*field, const char* id) {
        auto record = named(u"One", north);
        record.*field = id;
        return place.recordService().create({.physicalPrinterId = {}, .record = record}).status.text;
    };

    EXPECT_EQ(textOf(&PrinterRecord::modelId, "none"),
              u"The model of this printer does not exist any more. Please choose another one.");
    EXPECT_EQ(textOf(&PrinterRecord::alarmProgramId, "counter"), // of the other kind
              u"The alarm program of this printer does not exist any more. Please choose another one.");
    EXPECT_EQ(textOf(&PrinterRecord::counterProgramId, "alarm"),
              u"The counter program of this printer does not exist any more. Please choose another one.");
    EXPECT_TRUE(place.names(0, north).empty());
}

TEST(RecordService, anUpdateThatRefersToWhatDoesNotExistIsRefused) {
    TestEstate place;
    auto queue = place.record(place.add(3, u"Anywhere", place.addRegion(u"North")));
    queue.modelId = "none";

    EXPECT_EQ(place.recordService().update({.record = queue}).text,
              u"The model of this follow-print queue does not exist any more. Please choose another one.");
}

TEST(RecordService, aRecordOfAnOldDatabaseKeepsWhatItRefersTo) {
    TestEstate place;
    auto printer = place.record(place.addPrinter(u"One", place.addRegion(u"North")));
    printer.modelId = "of long ago";
    place.records().update(printer);
    printer.location = u"Quay 3";

    EXPECT_EQ(place.recordService().update({.record = printer}), protocol::StatusReply{});
    EXPECT_EQ(place.record(printer.id).location, u"Quay 3");
}

TEST(RecordService, aNameIsTakenOnlyAmongTheSameTypeInTheSameRegion) {
    TestEstate place;
    const auto north = place.addRegion(u"North");
    const auto south = place.addRegion(u"South");
    const auto printer = place.addPrinter(u"One", north);
    const auto refused = place.recordService().create({.physicalPrinterId = {}, .record = named(u"ONE", north)});
    EXPECT_EQ(refused.status.caption, u"Not saved");
    EXPECT_EQ(refused.status.text,
              u"There is a printer named \"ONE\" in this region already. Please choose another name.");
    EXPECT_EQ(refused.status.style, 0x30U);
    EXPECT_EQ(refused.id, "");
    EXPECT_FALSE(place.addPrinter(u"One", south).empty());
    EXPECT_FALSE(place.addQueue(u"One", printer).empty());
    EXPECT_FALSE(place.add(3, u"One", north).empty());
}

TEST(RecordService, aRecordWithoutANameIsRefused) {
    TestEstate place;
    const auto north = place.addRegion(u"North");
    EXPECT_EQ(place.recordService().create({.physicalPrinterId = {}, .record = named(u"", north)}).status.text,
              u"A printer needs a name.");
}

TEST(RecordService, aRegionOfTheOtherTreeIsNoRegionForARecord) {
    TestEstate place;
    const auto north = place.addRegion(u"North", 0, 0);
    const auto home = place.addRegion(u"Home", 0, 1);
    EXPECT_TRUE(place.addPrinter(u"P", home).empty());
    EXPECT_TRUE(place.add(6, u"L", north).empty());
    EXPECT_TRUE(place.addPrinter(u"P", 0).empty());
    EXPECT_FALSE(place.add(6, u"L", home).empty());
}

TEST(RecordService, aQueueStandsInTheRegionOfItsPrinterWhateverItSays) {
    TestEstate place;
    const auto north = place.addRegion(u"North");
    const auto printer = place.addPrinter(u"P", north);
    const auto reply = place.recordService().create({.physicalPrinterId = printer, .record = named(u"Q", 999, 1)});
    EXPECT_EQ(place.record(reply.id).regionId, north);
}

TEST(RecordService, aQueueOfAPrinterThatDoesNotExistIsRefused) {
    TestEstate place;
    const auto north = place.addRegion(u"North");
    const auto followQueue = place.add(3, u"F", north);
    EXPECT_TRUE(place.addQueue(u"Q", "nobody").empty());
    EXPECT_TRUE(place.addQueue(u"Q", "").empty());
    EXPECT_TRUE(place.addQueue(u"Q", followQueue).empty());
}

TEST(RecordService, typesThatOnlyTellHowToLoadAreStoredAsWhatTheyLoad) {
    TestEstate place;
    const auto north = place.addRegion(u"North");
    const auto printer = place.add(5, u"P", north);
    const auto queue = place.add(4, u"Q", 0, printer);
    EXPECT_EQ(place.record(printer).recordType, 0);
    EXPECT_EQ(place.record(queue).recordType, 1);
    for (const auto none : std::initializer_list<std::uint16_t>{2, 7, 8, 9, 10, 65535}) {
        EXPECT_TRUE(place.add(none, u"X", north).empty()) << none;
    }
}

TEST(RecordService, aRecordTooLongToBeReceivedIsRefusedAndOneThatJustFitsIsTaken) {
    TestEstate place;
    const auto north = place.addRegion(u"North");
    auto record = named(u"P", north);
    const auto fixed = wire::plainSize(record) + 36; // with the id that it will get
    record.auxKey = std::string(65535 - 5 - fixed + 1, 'x');
    EXPECT_FALSE(isDone(place.recordService().create({.physicalPrinterId = {}, .record = record}).status));
    record.auxKey.pop_back();
    EXPECT_TRUE(isDone(place.recordService().create({.physicalPrinterId = {}, .record = record}).status));
}

TEST(RecordService, anUpdateReplacesAllFieldsButTheType) {
    TestEstate place;
    const auto north = place.addRegion(u"North");
    addReferences(place);
    auto record = fullRecord(north);
    record.id = place.addPrinter(u"P", north);
    record.recordType = 7; // as a console loads a printer
    EXPECT_TRUE(isDone(place.recordService().update({.record = record})));
    record.recordType = 0;
    EXPECT_EQ(place.record(record.id), record);
}

TEST(RecordService, anUpdateOfWhatIsGoneIsRefused) {
    TestEstate place;
    const auto north = place.addRegion(u"North");
    auto record = named(u"P", north);
    record.id = "gone";
    const auto status = place.recordService().update({.record = record});
    EXPECT_EQ(status.text, u"It was deleted in the meantime.");
}

TEST(RecordService, anUpdateToATakenNameOrAMissingRegionIsRefusedAndChangesNothing) {
    TestEstate place;
    const auto north = place.addRegion(u"North");
    place.addPrinter(u"One", north);
    auto record = place.record(place.addPrinter(u"Two", north));
    const auto before = record;
    record.name = u"one";
    EXPECT_FALSE(isDone(place.recordService().update({.record = record})));
    record.name = u"Three";
    record.regionId = 4711;
    EXPECT_EQ(place.recordService().update({.record = record}).text, u"The region of this printer does not exist.");
    EXPECT_EQ(place.record(record.id), before);
}

TEST(RecordService, aPrinterTakesItsQueuesIntoAnotherRegion) {
    TestEstate place;
    const auto north = place.addRegion(u"North");
    const auto south = place.addRegion(u"South");
    const auto printer = place.addPrinter(u"P", north);
    const auto queue = place.addQueue(u"Q", printer);
    EXPECT_TRUE(isDone(place.recordService().move({.printerId = printer, .regionId = south})));
    EXPECT_EQ(place.record(printer).regionId, south);
    EXPECT_EQ(place.record(queue).regionId, south);
    auto record = place.record(printer);
    record.regionId = north;
    EXPECT_TRUE(isDone(place.recordService().update({.record = record})));
    EXPECT_EQ(place.record(queue).regionId, north);
}

TEST(RecordService, aMoveIsRefusedWhereANameIsTakenOrTheRegionIsMissing) {
    TestEstate place;
    const auto north = place.addRegion(u"North");
    const auto south = place.addRegion(u"South");
    const auto printer = place.addPrinter(u"P", north);
    const auto queue = place.addQueue(u"Q", printer);
    const auto other = place.addPrinter(u"Other", south);
    place.addQueue(u"q", other);
    EXPECT_EQ(place.recordService().move({.printerId = printer, .regionId = south}).text,
              u"There is a queue named \"Q\" in that region already.");
    EXPECT_FALSE(isDone(place.recordService().move({.printerId = printer, .regionId = 99})));
    EXPECT_FALSE(isDone(place.recordService().move({.printerId = queue, .regionId = south})));
    EXPECT_FALSE(isDone(place.recordService().move({.printerId = "nobody", .regionId = south})));
    EXPECT_EQ(place.record(printer).regionId, north);
    EXPECT_EQ(place.record(queue).regionId, north);
}

TEST(RecordService, deletingAPrinterDeletesItsQueues) {
    TestEstate place;
    const auto north = place.addRegion(u"North");
    const auto printer = place.addPrinter(u"P", north);
    const auto queue = place.addQueue(u"Q", printer);
    const auto other = place.addPrinter(u"Other", north);
    EXPECT_TRUE(isDone(place.recordService().remove({.type = protocol::RecordDeletion::printer, .id = printer})));
    EXPECT_FALSE(place.exists(printer));
    EXPECT_FALSE(place.exists(queue));
    EXPECT_TRUE(place.exists(other));
}

TEST(RecordService, aDeleteNamesTheRightTypeOrIsRefused) {
    TestEstate place;
    const auto north = place.addRegion(u"North");
    const auto home = place.addRegion(u"Home", 0, 1);
    const auto printer = place.addPrinter(u"P", north);
    const auto queue = place.addQueue(u"Q", printer);
    const auto followQueue = place.add(3, u"F", north);
    const auto localPrinter = place.add(6, u"L", home);
    EXPECT_FALSE(isDone(place.recordService().remove({.type = protocol::RecordDeletion::queue, .id = printer})));
    EXPECT_FALSE(isDone(place.recordService().remove({.type = protocol::RecordDeletion::printer, .id = queue})));
    EXPECT_FALSE(isDone(place.recordService().remove({.type = static_cast<protocol::RecordDeletion>(3), .id = queue})));
    EXPECT_FALSE(isDone(place.recordService().remove({.type = protocol::RecordDeletion::printer, .id = "nobody"})));
    EXPECT_TRUE(isDone(place.recordService().remove({.type = protocol::RecordDeletion::queue, .id = queue})));
    EXPECT_TRUE(isDone(place.recordService().remove({.type = protocol::RecordDeletion::queue, .id = followQueue})));
    EXPECT_TRUE(isDone(place.recordService().remove({.type = protocol::RecordDeletion::printer, .id = localPrinter})));
    EXPECT_TRUE(place.exists(printer));
}

TEST(RecordService, theStatusOctetOrderIsKeptForEachPrinterAndThroughAnUpdate) {
    TestEstate place;
    const auto north = place.addRegion(u"North");
    const auto one = place.addPrinter(u"One", north);
    const auto two = place.addPrinter(u"Two", north);
    EXPECT_TRUE(isDone(place.recordService().setOctetOrder({.order = 2, .printerId = one})));
    EXPECT_FALSE(isDone(place.recordService().setOctetOrder({.order = 2, .printerId = "nobody"})));
    EXPECT_TRUE(isDone(place.recordService().update({.record = place.record(one)})));
    EXPECT_EQ(place.records().octetOrder(one), 2U);
    EXPECT_EQ(place.records().octetOrder(two), 0U);
    EXPECT_EQ(place.records().octetOrder("nobody"), std::nullopt);
}

TEST(RecordTable, eachModeOfAListSelectsItsOwn) {
    TestEstate place;
    const auto north = place.addRegion(u"North");
    const auto south = place.addRegion(u"South");
    const auto home = place.addRegion(u"Home", 0, 1);
    const auto printer = place.addPrinter(u"b", north);
    place.addPrinter(u"A", north);
    const auto other = place.addPrinter(u"c", south);
    const auto queue = place.addQueue(u"q2", printer);
    place.addQueue(u"Q1", printer);
    place.addQueue(u"q3", other);
    const auto followQueue = place.add(3, u"f", north);
    const auto localPrinter = place.add(6, u"l", home);
    EXPECT_EQ(place.names(0, north), (Names{u"A", u"b"}));
    EXPECT_EQ(place.names(1, 0, printer), (Names{u"Q1", u"q2"}));
    EXPECT_EQ(place.names(1, north), (Names{u"Q1", u"q2"}));
    EXPECT_EQ(place.names(3, north), Names{u"f"});
    EXPECT_EQ(place.names(4, 0, queue), Names{u"q2"});
    EXPECT_EQ(place.names(4, 0, followQueue), Names{u"f"});
    EXPECT_EQ(place.names(4, 0, printer), Names{});
    EXPECT_EQ(place.names(5, 0, printer), Names{u"b"});
    EXPECT_EQ(place.names(5, 0, queue), Names{});
    EXPECT_EQ(place.names(6, home), Names{u"l"});
    EXPECT_EQ(place.names(6, 0, localPrinter), Names{u"l"});
    for (const auto mode : std::initializer_list<std::uint16_t>{8, 9, 10}) {
        EXPECT_EQ(place.names(mode, 0, queue), Names{u"q2"}) << mode;
    }
    for (const auto mode : std::initializer_list<std::uint16_t>{2, 7, 11, 65535}) {
        EXPECT_EQ(place.names(mode, north, queue), Names{}) << mode;
    }
}

TEST(RecordTable, theCountOfAListIsTheNumberOfItsRows) {
    TestEstate place;
    const auto north = place.addRegion(u"North");
    place.addPrinter(u"A", north);
    place.addPrinter(u"B", north);
    EXPECT_EQ(place.records().count({.printerId = {}, .regionId = north, .mode = 0}), 2);
    EXPECT_EQ(place.records().count({.printerId = {}, .regionId = north + 1, .mode = 0}), 0);
    EXPECT_EQ(place.records().count({.printerId = {}, .regionId = north, .mode = 77}), 0);
}

} // namespace
} // namespace server
