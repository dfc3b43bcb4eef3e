#include "client/ConnectFailed.h"
#include "tests/client/ClientTest.h"
#include "tests/protocol/estate/PrinterRecordBytes.h"

#include <stdexcept>

namespace client {
namespace {

using protocol::FieldValue;

class RawCall : public ClientTest {
protected:
    RawReply call(std::uint16_t opcode, const std::vector<FieldValue>& fields = {}) {
        return CQVXAdminClass(settings).rawCall(opcode, fields);
    }
};

TEST_F(RawCall, sendsItsFieldsAsTheyAre) {
    answer({Bytes{}});

    const RawReply reply = call(1, {{std::uint8_t{0}}, {std::uint32_t{5}}, {wire::WideString(u"North")}});

    EXPECT_TRUE(reply.complete);
    EXPECT_TRUE(reply.records.empty());
    EXPECT_EQ(received(), request(1, "00 05 00 00 00 0A 00 4E 00 6F 00 72 00 74 00 68 00"));
}

TEST_F(RawCall, takesTheVersionFromTheCatalogue) {
    answer({frame({dataMessage(hex("00 00 00 00 00 00 00 00"))})});

    const RawReply reply = call(10);

    EXPECT_EQ(received(), frame({commandMessage(10, 2)}));
    ASSERT_EQ(reply.records.size(), 1U);
    EXPECT_EQ(reply.records[0].at(0).name, "caption");
}

TEST_F(RawCall, aListGivesItsRecordsByName) {
    answer({countedList({protocol::ordinaryPrinterFields(), protocol::ordinaryPrinterFields()})});

    const RawReply reply = call(6, {{std::string()}, {std::int32_t{1}}, {std::uint16_t{0}}});

    ASSERT_EQ(reply.records.size(), 2U);
    EXPECT_EQ(reply.records[1].at(3).name, "name");
    EXPECT_EQ(std::get<wire::WideString>(reply.records[1].at(3).value.value), u"Ahrn");
}

TEST_F(RawCall, regionsInOneMessageAreRecordsToo) {
    answer({frame({dataMessage(hex("01 00 02 00 41 00 01 00 00 00 00 00 00 00"))})});

    const RawReply reply = call(0, {{std::uint8_t{0}}, {std::uint32_t{0}}, {std::uint16_t{0}}});

    ASSERT_EQ(reply.records.size(), 1U);
    EXPECT_EQ(std::get<wire::WideString>(reply.records[0].at(0).value.value), u"A");
}

TEST_F(RawCall, regionsInFramesOfTheirOwnAreRecordsToo) {
    answer({countedList({hex("02 00 41 00 01 00 00 00 00 00 00 00")})});

    EXPECT_EQ(call(0, {{std::uint8_t{0}}, {std::uint32_t{0}}, {std::uint16_t{0}}}).records.size(), 1U);
}

TEST_F(RawCall, theFirstByteOfARequestMayTellOfOtherRecords) {
    answer({countedList({hex("01 00 64 02 00 31 00 00 00")}), countedList({hex("01 00 64 02 00 31 00 00 00")})});

    const RawReply shortReply = call(12, {{std::uint8_t{2}}, {std::string("m")}});

    ASSERT_EQ(shortReply.records.size(), 1U);
    EXPECT_EQ(shortReply.records[0].size(), 3U);
    EXPECT_THROW((void)call(12, {{std::uint8_t{1}}, {std::string("m")}}), const char*);
}

TEST_F(RawCall, aListThatBreaksOffIsNotComplete) {
    serve({[](Connection& connection) {
        connection.expectFrame();
        connection.send(frame({dataMessage(hex("02 00"))}) + frame({dataMessage(protocol::ordinaryPrinterFields())}));
    }});

    const RawReply reply = call(6);

    EXPECT_FALSE(reply.complete);
    EXPECT_EQ(reply.records.size(), 1U);
}

TEST_F(RawCall, anOpcodeThatIsNotInUseIsRefused) {
    EXPECT_THROW(static_cast<void>(call(7)), std::invalid_argument);
    EXPECT_EQ(thrownBy([&] { static_cast<void>(call(63)); }), "No command has the opcode 63");
}

TEST_F(RawCall, theLoginIsRefused) {
    EXPECT_EQ(thrownBy([&] { static_cast<void>(call(22)); }), "A login is more than one command");
}

TEST_F(RawCall, withoutAServerThrowsForEveryKindOfConnection) {
    EXPECT_THROW(static_cast<void>(call(0)), ConnectFailed);
    EXPECT_THROW(static_cast<void>(call(1)), ConnectFailed);
    EXPECT_THROW(static_cast<void>(call(78)), ConnectFailed);
}

} // namespace
} // namespace client
