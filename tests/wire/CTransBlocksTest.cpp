#include "tests/support/ScriptedServer.h"
#include "tests/wire/OpenConnection.h"
#include "wire/CTrans.h"

#include <gtest/gtest.h>

using support::Bytes;
using support::hex;
using support::ScriptedServer;
using support::toHex;
using trans::CTrans;

namespace {

// Sends a block to a server that acknowledges it and answers with the given byte.
bool sendResult(std::uint8_t answer) {
    ScriptedServer server([&](auto& connection) {
        connection.expect(4);
        connection.send({0xAA});
        connection.expect(3);
        connection.send({answer});
        connection.stall();
    });
    CTrans connection;
    open(connection, server);
    const bool sent = connection.sendBlock("abc");
    connection.disconnect(0);
    EXPECT_EQ(server.finish(), "");
    EXPECT_EQ(toHex(server.received()), "03 00 00 00 61 62 63");
    return sent;
}

} // namespace

TEST(CTransBlocks, aBlockIsItsLengthAnAcknowledgementItsBytesAndTheResult) {
    EXPECT_TRUE(sendResult(1));
}

TEST(CTransBlocks, anyResultOtherThanOneIsAFailure) {
    EXPECT_FALSE(sendResult(2));
    EXPECT_FALSE(sendResult(0));
    EXPECT_FALSE(sendResult(255));
}

TEST(CTransBlocks, aBlockMayHoldZeroBytesAndBeLongerThanAChunk) {
    Bytes expected(25000, 0);
    expected[10000] = 1;
    expected[24999] = 2;
    Bytes arrived;
    ScriptedServer server([&](auto& connection) {
        connection.expect(4);
        connection.send({0});
        arrived = connection.expect(25000);
        connection.send({1});
        connection.stall();
    });
    CTrans connection;
    open(connection, server);
    EXPECT_TRUE(connection.sendBlock({reinterpret_cast<const char*>(expected.data()), expected.size()}));
    EXPECT_EQ(connection.counts().sendCalls, 4u); // the length and three chunks
    connection.disconnect(0);
    EXPECT_EQ(server.finish(), "");
    EXPECT_EQ(arrived, expected);
}

TEST(CTransBlocks, anEmptyBlockIsNotSent) {
    ScriptedServer server([](auto& connection) { connection.untilClosed(); });
    CTrans connection;
    open(connection, server);
    EXPECT_FALSE(connection.sendBlock(""));
    connection.disconnect(0);
    EXPECT_EQ(server.finish(), "");
    EXPECT_EQ(toHex(server.received()), "");
}

TEST(CTransBlocks, aServerThatClosesInsteadOfConfirmingIsAFailure) {
    ScriptedServer server([](auto& connection) { connection.expect(4); });
    CTrans connection;
    open(connection, server);
    EXPECT_FALSE(connection.sendBlock("abc"));
}

TEST(CTransBlocks, withoutAConnectionBlocksThrow) {
    CTrans connection;
    std::string data;
    EXPECT_THROW(connection.sendBlock("abc"), const char*);
    EXPECT_THROW(connection.receiveBlock(data), const char*);
}

TEST(CTransBlocks, aReceivedBlockIsAcknowledgedWithTheLowByteOfItsLengthAndConfirmed) {
    ScriptedServer server([](auto& connection) {
        connection.send(hex("05 00 00 00"));
        connection.expect(1);
        connection.send(hex("61 00 62 00 63"));
        connection.untilClosed();
    });
    CTrans connection;
    open(connection, server);
    std::string data = "before";
    EXPECT_TRUE(connection.receiveBlock(data));
    connection.disconnect(0);
    EXPECT_EQ(server.finish(), "");
    EXPECT_EQ(data, std::string("a\0b\0c", 5));
    EXPECT_EQ(toHex(server.received()), "05 01");
}

TEST(CTransBlocks, aReceivedBlockOfNothingIsASuccess) {
    ScriptedServer server([](auto& connection) {
        connection.send(hex("00 00 00 00"));
        connection.untilClosed();
    });
    CTrans connection;
    open(connection, server);
    std::string data = "before";
    EXPECT_TRUE(connection.receiveBlock(data));
    connection.disconnect(0);
    EXPECT_EQ(server.finish(), "");
    EXPECT_EQ(data, "");
    EXPECT_EQ(toHex(server.received()), "00 01");
}

TEST(CTransBlocks, aReceivedBlockOfSeveralChunksIsPutTogether) {
    const Bytes sent = hex("A8 61 00 00"); // 25,000
    Bytes body(25000);
    for (std::size_t index = 0; index < body.size(); ++index) {
        body[index] = static_cast<std::uint8_t>(index % 253);
    }
    ScriptedServer server([&](auto& connection) {
        connection.send(sent);
        connection.send(body);
        connection.untilClosed();
    });
    CTrans connection;
    open(connection, server);
    std::string data;
    EXPECT_TRUE(connection.receiveBlock(data));
    EXPECT_EQ(Bytes(data.begin(), data.end()), body);
}

TEST(CTransBlocks, aReceivedBlockThatBreaksOffIsAnsweredWithTwo) {
    ScriptedServer server([](auto& connection) {
        connection.send(hex("05 00 00 00 61 62"));
        connection.endSending();
        connection.untilClosed();
    });
    CTrans connection;
    open(connection, server);
    std::string data;
    EXPECT_FALSE(connection.receiveBlock(data));
    connection.disconnect(0);
    EXPECT_EQ(server.finish(), "");
    EXPECT_EQ(data, "");
    EXPECT_EQ(toHex(server.received()), "05 02");
}

TEST(CTransBlocks, aBlockLengthThatLiesTakesNoMemory) {
    ScriptedServer server([](auto& connection) {
        connection.send(hex("FF FF FF FF 61"));
        connection.endSending();
        connection.untilClosed();
    });
    CTrans connection;
    open(connection, server);
    std::string data;
    EXPECT_FALSE(connection.receiveBlock(data));
    EXPECT_LT(data.capacity(), 100000u);
}

TEST(CTransBlocks, aBlockAsLongAsTheCallerTakesIsReceived) {
    ScriptedServer server([](auto& connection) {
        connection.send(hex("03 00 00 00 61 62 63"));
        connection.untilClosed();
    });
    CTrans connection;
    open(connection, server);
    std::string data;
    EXPECT_TRUE(connection.receiveBlock(data, 3));
    EXPECT_EQ(data, "abc");
}

TEST(CTransBlocks, aBlockLongerThanTheCallerTakesIsAnsweredWithTwoAndNotReceived) {
    ScriptedServer server([](auto& connection) {
        connection.send(hex("04 00 00 00 61 62 63 64"));
        connection.untilClosed();
    });
    CTrans connection;
    open(connection, server);
    std::string data = "before";
    EXPECT_FALSE(connection.receiveBlock(data, 3));
    connection.disconnect(0);
    EXPECT_EQ(server.finish(), "");
    EXPECT_EQ(data, "");
    EXPECT_EQ(toHex(server.received()), "02");
}

TEST(CTransBlocks, aLengthThatBreaksOffIsAFailure) {
    ScriptedServer server([](auto& connection) {
        connection.send(hex("05 00"));
        connection.endSending();
        connection.untilClosed();
    });
    CTrans connection;
    open(connection, server);
    std::string data;
    EXPECT_FALSE(connection.receiveBlock(data));
}
