#include "server/commands/Handler.h"

#include "protocol/Catalogue.h"
#include "server/Commands.h"
#include "tests/server/TestClient.h"
#include "tests/server/TestEstate.h"

#include <gtest/gtest.h>

namespace server {
namespace {

using namespace test; // the words of requests

// All frames of the answer, asked for in pieces of the size.
test::Bytes answerOf(StoreConnection& connection, std::uint16_t opcode, const test::Bytes& fields,
                     std::size_t piece = 65536) {
    const auto answer = commands().find(opcode, fields)->answer(fields, connection);
    test::Bytes all;
    for (bool more = true; more;) {
        ReplyBuffer buffer;
        more = answer->append(buffer, piece);
        all = std::move(all) + test::Bytes(buffer.bytes().begin(), buffer.bytes().end());
    }
    return all;
}

test::Bytes regionsOf(std::uint8_t kind, std::uint32_t parent) {
    return test::u8(kind) + test::u32(parent) + test::u16(0);
}

test::Bytes printersOf(std::int32_t region) {
    return test::str8("") + test::u32(static_cast<std::uint32_t>(region)) + test::u16(0);
}

TEST(Handler, aCommandEitherReadsOrChanges) {
    for (const std::uint16_t opcode : std::initializer_list<std::uint16_t>{0, 6, 76}) {
        EXPECT_NE(commands().find(opcode, {})->answer, nullptr) << opcode;
        EXPECT_EQ(commands().find(opcode, {})->prepare, nullptr) << opcode;
    }
    for (const std::uint16_t opcode : std::initializer_list<std::uint16_t>{1, 2, 3, 9, 10, 21, 36, 45, 74}) {
        EXPECT_NE(commands().find(opcode, {})->prepare, nullptr) << opcode;
        EXPECT_EQ(commands().find(opcode, {})->answer, nullptr) << opcode;
    }
}

TEST(Handler, everyCommandHasOneButThoseOfTheLogin) {
    for (const auto& command : protocol::catalogue()) {
        const bool isLogin = command.opcode == 22 || command.opcode == 78;
        const std::uint8_t action[] = {static_cast<std::uint8_t>(command.opcode == 62 ? 3 : 1)};
        EXPECT_EQ(commands().find(command.opcode, action) == nullptr, isLogin) << command.name;
    }
}

TEST(Handler, anActionThatDoesNotExistIsRefused) {
    const std::uint8_t action[] = {77};
    for (const std::uint16_t opcode : {std::uint16_t{58}, std::uint16_t{60}, std::uint16_t{64}, std::uint16_t{68}})
        EXPECT_THROW((void)commands().find(opcode, action), BadRequest) << opcode;
    EXPECT_THROW((void)commands().find(58, {}), BadRequest);
}

TEST(Handler, anOpcodeThatIsNotInUseHasNone) {
    for (const std::uint16_t opcode : std::initializer_list<std::uint16_t>{7, 8, 26, 35, 63, 72, 85, 65535})
        EXPECT_EQ(commands().find(opcode, {}), nullptr) << opcode;
}

TEST(RegionListStream, noRegionsAreOneMessageWithACountOfZero) {
    TestEstate place;
    EXPECT_EQ(support::toHex(answerOf(place.connection(), 0, regionsOf(0, 0))),
              "01 07 00 00 00 08 00 00 00 01 07 00 00 00 00 00");
}

TEST(RegionListStream, regionsComeInOneMessage) {
    TestEstate place;
    place.addRegion(u"B");
    place.addRegion(u"a", 1);
    EXPECT_EQ(support::toHex(answerOf(place.connection(), 0, regionsOf(0, 0))),
              "01 1F 00 00 00 CD 00 00 00 01 1F 00 00 00 02 00 "
              "02 00 61 00 02 00 00 00 01 00 00 00 02 00 42 00 01 00 00 00 00 00 00 00");
}

TEST(RegionListStream, aParentSelectsTheRegionsBelowIt) {
    TestEstate place;
    place.addRegion(u"top");
    place.addRegion(u"below", 1);
    place.addRegion(u"deeper", 2);
    const auto messages = test::messagesOf(answerOf(place.connection(), 0, regionsOf(0, 1)));
    FieldCursor message(messages.at(0));
    EXPECT_EQ(message.number(2), 1U);
    EXPECT_EQ(message.text16(), u"below");
}

TEST(RegionListStream, aListOfExactlyTheLargestFrameIsOneMessage) {
    TestEstate place;
    place.addRegion(std::u16string((65535 - 7 - 10) / 2, u'x')); // one byte short of the limit: units take two
    EXPECT_EQ(test::messagesOf(answerOf(place.connection(), 0, regionsOf(0, 0))).size(), 1U);
}

TEST(RegionListStream, aLongerListIsCountedAndSentRecordByRecord) {
    TestEstate place;
    place.addRegion(std::u16string(20000, u'x'));
    place.addRegion(std::u16string(20000, u'y'));
    const auto messages = test::messagesOf(answerOf(place.connection(), 0, regionsOf(0, 0), 10));
    ASSERT_EQ(messages.size(), 3U);
    EXPECT_EQ(support::toHex(messages[0]), "01 07 00 00 00 02 00");
    FieldCursor second(messages[2]);
    EXPECT_EQ(second.text16(), std::u16string(20000, u'y'));
    EXPECT_EQ(second.number(4), 2U);
    EXPECT_EQ(second.number(4), 0U);
    EXPECT_TRUE(second.atEnd());
}

TEST(ListStream, aCountOfZeroIsOneFrameAndNoRecordFollows) {
    TestEstate place;
    EXPECT_EQ(support::toHex(answerOf(place.connection(), 6, printersOf(1))),
              "01 07 00 00 00 08 00 00 00 01 07 00 00 00 00 00");
}

TEST(ListStream, aRecordGoesOutWithAllItsFields) {
    TestEstate place;
    const auto region = place.addRegion(u"North");
    const auto id = place.addPrinter(u"P", region);
    const auto messages = test::messagesOf(answerOf(place.connection(), 6, printersOf(region)));
    ASSERT_EQ(messages.size(), 2U);
    const auto idInHex = support::toHex({id.begin(), id.end()});
    EXPECT_EQ(support::toHex(messages[1]), "01 64 00 00 00 00 00 00 00 24 00 " + idInHex +
                                               " 02 00 50 00 00 00 00 00 00 00 00 00 00 00 00 00 "
                                               "03 02 00 00 01 00 00 00 00 00 30 30 30 00 00 00 00 00 00 00 00 00 00 "
                                               "00 00 00 00 00 00 00 00 00 00 00 00 00 00");
}

TEST(ListStream, piecesOfAnySizeGiveTheSameBytes) {
    TestEstate place;
    const auto region = place.addRegion(u"North");
    for (int number = 0; number < 20; ++number)
        place.addPrinter(std::u16string(1, static_cast<char16_t>(u'A' + number)), region);
    const auto whole = answerOf(place.connection(), 6, printersOf(region));
    EXPECT_EQ(test::messagesOf(whole).size(), 21U);
    for (const std::size_t piece : {1U, 100U, 1000U})
        EXPECT_EQ(answerOf(place.connection(), 6, printersOf(region), piece), whole) << piece;
}

TEST(ListStream, aListOfMoreThanAConsoleTakesIsCut) {
    TestEstate place;
    const auto region = place.addRegion(u"North");
    place.connection().change([&] {
        protocol::PrinterRecord record;
        record.regionId = region;
        for (int number = 0; number < 32769; ++number) {
            record.id = std::to_string(number);
            record.name = std::u16string(record.id.begin(), record.id.end());
            place.records().insert({.record = record, .printerId = {}});
        }
        return true;
    });
    const auto messages = test::messagesOf(answerOf(place.connection(), 6, printersOf(region)));
    EXPECT_EQ(support::toHex(messages.at(0)), "01 07 00 00 00 FF 7F");
    EXPECT_EQ(messages.size(), 32768U);
}

TEST(OctetOrderAnswer, theOrderOfAPrinterComesAndZeroForOneThatIsNotThere) {
    TestEstate place;
    const auto id = place.addPrinter(u"P", place.addRegion(u"North"));
    place.recordService().setOctetOrder({.order = 2, .printerId = id});
    EXPECT_EQ(support::toHex(answerOf(place.connection(), 76, test::str8(id))),
              "01 09 00 00 00 0C 00 00 00 01 09 00 00 00 02 00 00 00");
    EXPECT_EQ(support::toHex(answerOf(place.connection(), 76, test::str8("nobody"))),
              "01 09 00 00 00 0A 00 00 00 01 09 00 00 00 00 00 00 00");
}

} // namespace
} // namespace server
