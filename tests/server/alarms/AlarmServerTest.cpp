#include "tests/server/support/RunningServer.h"
#include "tests/server/support/TestClient.h"

#include <gtest/gtest.h>

namespace server {
namespace {

using support::toHex;
using namespace test; // the words of requests

// A server, and the commands for alarms on the wire.
class AlarmServer : public testing::Test {
protected:
    AlarmServer() { server.start(); }

    // The records of a list, its count checked.
    std::vector<Bytes> list(std::uint16_t opcode, const std::optional<Bytes>& fields) {
        auto messages = messagesOf(ask(server.port(), request(opcode, fields)));
        EXPECT_EQ(FieldCursor(messages.at(0)).number(2), messages.size() - 1);
        messages.erase(messages.begin());
        return messages;
    }
    std::vector<Bytes> recipients() { return list(23, str8("")); }
    std::vector<Bytes> programs() { return list(27, u8(0) + str8("")); }

    void write(std::uint16_t opcode, const Bytes& fields) {
        EXPECT_EQ(toHex(ask(server.port(), request(opcode, fields))), "");
    }

    std::string addRecipient(const std::u16string& name) {
        write(24, str8("") + str16(name) + str16(u"a@b") + u8(1));
        return FieldCursor(recipients().at(0)).text8();
    }
    std::string writeProgram(const std::string& id, const std::u16string& name) {
        const auto message =
            messagesOf(ask(server.port(), request(28, str8(id) + str16(name) + str16(u"") + str16(u"")))).at(0);
        FieldCursor reply(message);
        auto answered = reply.text8();
        EXPECT_TRUE(reply.atEnd());
        return answered;
    }

    RunningServer server;
};

TEST_F(AlarmServer, aRecipientIsListedWithTheAddressBeforeTheName) {
    const auto id = addRecipient(u"Jo");
    const auto message = recipients().at(0);
    FieldCursor record(message);
    EXPECT_EQ(record.text8(), id);
    EXPECT_EQ(record.text16(), u"a@b");
    EXPECT_EQ(record.text16(), u"Jo");
    EXPECT_EQ(record.number(1), 1U);
    EXPECT_TRUE(record.atEnd());
    EXPECT_EQ(list(23, str8(id)).size(), 1U);
    EXPECT_EQ(list(23, str8("nobody")).size(), 0U);
}

TEST_F(AlarmServer, aRecipientIsChangedSwitchedAndDeleted) {
    const auto id = addRecipient(u"Jo");
    write(24, str8(id) + str16(u"Jon") + str16(u"x") + u8(1));
    write(25, str8(id) + u8(0));
    const auto message = recipients().at(0);
    EXPECT_EQ(toHex({message.end() - 13, message.end()}), "02 00 78 00 06 00 4A 00 6F 00 6E 00 00");
    write(24, str8(id) + str16(u"") + str16(u"") + u8(0));
    EXPECT_EQ(recipients().size(), 0U);
}

TEST_F(AlarmServer, whatIsRefusedAboutRecipientsIsNotDone) {
    const auto id = addRecipient(u"Jo");
    const auto before = recipients();
    write(24, str8("") + str16(u"") + str16(u"") + u8(1));
    write(24, str8(id) + str16(u"N") + str16(u"") + u8(1));
    write(24, str8("gone") + str16(u"") + str16(u"") + u8(0));
    write(25, str8("gone") + u8(0));
    EXPECT_EQ(recipients(), before);
}

TEST_F(AlarmServer, aProgramIsAnsweredWithItsIdHoweverItIsWritten) {
    const auto id = writeProgram("", u"P");
    EXPECT_EQ(id.size(), 36U);
    EXPECT_EQ(writeProgram(id, u"Q"), id);
    const auto message = list(27, u8(0) + str8(id)).at(0);
    FieldCursor record(message);
    EXPECT_EQ(record.text8(), id);
    EXPECT_EQ(record.text16(), u"Q");
    EXPECT_EQ(record.text16(), u"");
    EXPECT_EQ(record.text16(), u"");
    EXPECT_EQ(record.text16().size(), 19U);
    EXPECT_TRUE(record.atEnd());
    EXPECT_EQ(writeProgram(id, u""), id);
    EXPECT_EQ(programs().size(), 0U);
}

TEST_F(AlarmServer, aRefusedProgramIsAnsweredWithAnEmptyId) {
    const auto id = writeProgram("", u"P");
    EXPECT_EQ(toHex(ask(server.port(), request(28, str8("") + str16(u"p") + str16(u"") + str16(u"")))),
              "01 07 00 00 00 08 00 00 00 01 07 00 00 00 00 00");
    EXPECT_EQ(writeProgram("", u""), "");
    EXPECT_EQ(writeProgram("gone", u"Q"), "");
    EXPECT_EQ(programs().size(), 1U);
}

TEST_F(AlarmServer, eventsActionsAndCounterProgramsAreThereFromTheBeginning) {
    EXPECT_EQ(list(29, std::nullopt).size(), 11U);
    EXPECT_EQ(toHex(list(30, std::nullopt).at(3)), "01 16 00 00 00 04 00 0C 00 49 00 67 00 6E 00 6F 00 72 00 65 00 00");
    EXPECT_EQ(list(27, u8(2) + str8("")).size(), 3U);
}

TEST_F(AlarmServer, anActionIsAddedListedAndDeleted) {
    const auto recipient = addRecipient(u"Jo");
    const auto program = writeProgram("", u"P");
    const auto destination = list(31, u16(1)).at(0);
    EXPECT_EQ(FieldCursor(destination).text8(), recipient);
    write(33, str8(program) + str8("paper-jam") + u16(1) + str8(recipient));
    const auto message = list(32, str8(program)).at(0);
    FieldCursor record(message);
    const auto id = record.text8();
    EXPECT_EQ(record.text8(), "Send e-mail");
    EXPECT_EQ(record.text8(), "Paper jam");
    EXPECT_EQ(record.text16(), u"Jo");
    EXPECT_TRUE(record.atEnd());
    write(34, str8(id));
    EXPECT_EQ(list(32, str8(program)).size(), 0U);
}

TEST_F(AlarmServer, whatIsRefusedAboutActionsIsNotDone) {
    const auto recipient = addRecipient(u"Jo");
    const auto program = writeProgram("", u"P");
    write(33, str8(program) + str8("paper-jam") + u16(1) + str8(recipient));
    write(33, str8(program) + str8("paper-jam") + u16(1) + str8(recipient));
    write(33, str8(program) + str8("paper-jam") + u16(4) + str8(recipient));
    write(33, str8("gone") + str8("paper-jam") + u16(1) + str8(recipient));
    write(34, str8(recipient));
    EXPECT_EQ(list(32, str8(program)).size(), 1U);
}

} // namespace
} // namespace server
