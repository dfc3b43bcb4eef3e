#include "server/estate/RegionTable.h"
#include "tests/server/support/ManyPrinters.h"
#include "tests/server/support/RunningServer.h"
#include "tests/server/support/TestClient.h"

#include <gtest/gtest.h>

#include <random>

namespace server {
namespace {

using support::hex;
using support::toHex;
using namespace test; // the words of requests
using namespace std::chrono_literals;

const auto emptyList = "01 07 00 00 00 08 00 00 00 01 07 00 00 00 00 00";

Bytes requestForRegions() {
    return request(0, u8(0) + u32(0) + u16(0));
}

bool answers(const RunningServer& server) {
    return toHex(ask(server.port(), requestForRegions())) == emptyList;
}

Bytes answerTo(const RunningServer& server, const Bytes& bytes) {
    TestClient client(server.port());
    client.trySend(bytes);
    client.closeSending();
    return client.receiveAll();
}

TEST(HostilePeer, aWrongChecksumEndsTheConnection) {
    RunningServer server;
    server.start();
    EXPECT_EQ(toHex(ask(server.port(), support::frame({support::commandMessage(78, 1)}, 1))), "");
    EXPECT_TRUE(answers(server));
}

TEST(HostilePeer, aFrameBeyondTheLimitEndsTheConnectionBeforeItsDataComes) {
    RunningServer server;
    server.start();
    EXPECT_EQ(toHex(ask(server.port(), hex("01 01 F4 01 00 00 00 00 00"))), "");
    EXPECT_EQ(toHex(ask(server.port(), hex("01 FF FF FF FF 00 00 00 00"))), "");
    EXPECT_TRUE(answers(server));
}

TEST(HostilePeer, aFrameOfExactlyTheLimitIsTaken) {
    RunningServer server;
    server.start();
    const auto known = u8(0) + u32(0) + u16(0);
    const Bytes filling(128000 - 9 - 5 - known.size(), 0xAB);
    EXPECT_EQ(toHex(ask(server.port(), request(0, known + filling))), emptyList);
    EXPECT_EQ(toHex(answerTo(server, request(0, known + filling + Bytes{0}))), "");
}

TEST(HostilePeer, unknownCommandsAndVersionsEndTheConnection) {
    RunningServer server;
    server.start();
    for (const int opcode : {7, 8, 26, 35, 63, 72, 85, 999, 65535}) {
        EXPECT_EQ(toHex(ask(server.port(), request(static_cast<std::uint16_t>(opcode), u32(0)))), "") << opcode;
    }
    EXPECT_EQ(toHex(ask(server.port(), request(0, u8(0) + u32(0) + u16(0), 2))), "");
    EXPECT_EQ(toHex(ask(server.port(), request(57, std::nullopt))), "");
    EXPECT_TRUE(answers(server));
}

TEST(HostilePeer, aRequestThatIsTooShortEndsTheConnectionAndChangesNothing) {
    RunningServer server;
    server.start();
    for (const int opcode : {0, 1, 2, 3, 6, 9, 21, 22, 36, 45, 74, 76}) {
        const auto number = static_cast<std::uint16_t>(opcode);
        EXPECT_EQ(toHex(ask(server.port(), request(number, std::nullopt))), "") << opcode;
        EXPECT_EQ(toHex(ask(server.port(), request(number, Bytes{0}))), "") << opcode;
    }
    EXPECT_EQ(toHex(ask(server.port(), request(10, Bytes{0}, 2))), "");
    EXPECT_EQ(toHex(ask(server.port(), request(1, u8(0) + u32(0) + hex("FF FF 41 00")))), "");
    EXPECT_TRUE(answers(server));
}

TEST(HostilePeer, everyTruncatedCommandIsDroppedWhole) {
    RunningServer server;
    server.start();
    const auto whole = request(1, u8(0) + u32(0) + str16(u"North"));
    for (std::size_t size = 0; size < whole.size(); ++size) {
        EXPECT_EQ(toHex(answerTo(server, {whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)})), "")
            << size;
    }
    EXPECT_TRUE(answers(server));
}

TEST(HostilePeer, everyFlippedBitLeavesTheServerAnswering) {
    RunningServer server;
    server.start();
    const auto whole = requestForRegions();
    for (std::size_t bit = 0; bit < whole.size() * 8; ++bit) {
        auto bytes = whole;
        bytes[bit / 8] = static_cast<std::uint8_t>(bytes[bit / 8] ^ (1U << (bit % 8)));
        (void)answerTo(server, bytes);
    }
    EXPECT_TRUE(answers(server));
}

TEST(HostilePeer, garbageLeavesTheServerAnswering) {
    RunningServer server;
    server.start();
    std::mt19937 random(4711);
    for (int round = 0; round < 300; ++round) {
        Bytes bytes(random() % 600);
        for (auto& byte : bytes) {
            byte = static_cast<std::uint8_t>(random());
        }
        // Half of it is sent in a valid frame, with an existing command.
        if (round % 2 == 0) {
            bytes = request(static_cast<std::uint16_t>(random() % 90), bytes, round % 3 == 0 ? 2 : 1);
        }
        (void)answerTo(server, bytes);
    }
    const auto answer = ask(server.port(), requestForRegions());
    EXPECT_GE(answer.size(), 16U);
}

TEST(HostilePeer, whoSaysNothingIsDropped) {
    RunningServer server(Limits{.headerTime = 100ms});
    server.start();
    TestClient client(server.port());
    EXPECT_TRUE(client.isClosedSilently());
    TestClient half(server.port());
    half.send(hex("01 09 00"));
    EXPECT_TRUE(half.isClosedSilently());
    EXPECT_TRUE(answers(server));
}

TEST(HostilePeer, whoStallsInsideOfAFrameIsDropped) {
    RunningServer server(Limits{.bodyTime = 100ms});
    server.start();
    TestClient client(server.port());
    client.send(hex("01 09 00 00 00 00 00 00 00 00"));
    EXPECT_TRUE(client.isClosedSilently());
    EXPECT_TRUE(answers(server));
}

TEST(HostilePeer, whoStallsInsideOfALoginIsDropped) {
    RunningServer server(Limits{.headerTime = 200ms, .bodyTime = 200ms});
    server.start();
    TestClient client(server.port());
    client.send(request(22, hex("03 00 00 00")) + u32(256));
    EXPECT_EQ(client.receive(1).size(), 1U);
    client.send({1, 2, 3});
    EXPECT_TRUE(client.isClosedSilently());
    TestClient key(server.port());
    key.send(request(78, std::nullopt));
    (void)key.receiveFrame();
    EXPECT_EQ(key.receiveAll().size(), 4U); // the length of the key, which is never acknowledged
}

TEST(HostilePeer, whoDoesNotTakeItsAnswerIsDropped) {
    RunningServer server(Limits{.sendTime = 200ms});
    const auto connection = server.store().openConnection();
    const auto region = connection->table<RegionTable>().insert(0, 0, u"North");
    addManyPrinters(*connection, region, 1000, std::u16string(30000, u'c'));
    server.start();
    const auto list = request(6, str8("") + u32(1) + u16(0));
    TestClient slow(server.port());
    slow.send(list);
    // Once the server waits for nobody, it has dropped the peer that does not read.
    server.stop();
    EXPECT_LT(slow.receiveAll().size(), std::size_t{1000} * 60000);
}

TEST(HostilePeer, connectionsWithoutACommandMakeRoomForThoseWithOne) {
    RunningServer server(Limits{.idleTime = 50ms, .connections = 8});
    server.start();
    std::vector<TestClient> silent;
    for (int count = 0; count < 50; ++count) {
        silent.emplace_back(server.port());
    }
    EXPECT_TRUE(answers(server));
    EXPECT_TRUE(silent.front().isClosedSilently());
}

TEST(HostilePeer, oneAddressHoldsOnlySoManyConnectionsWithoutACommand) {
    RunningServer server(Limits{.idleTime = 0ms, .arrivingFromOneAddress = 4});
    server.start();
    std::vector<TestClient> silent;
    for (int count = 0; count < 6; ++count) {
        silent.emplace_back(server.port());
    }
    EXPECT_TRUE(silent[0].isClosedSilently());
    EXPECT_TRUE(silent[1].isClosedSilently());
    EXPECT_EQ(toHex(silent[5].send(requestForRegions()).receiveAll()), emptyList);
    EXPECT_TRUE(answers(server));
}

TEST(HostilePeer, changesBeyondTheNumberOfConnectionsWaitOutsideAndAreAllDone) {
    RunningServer server(Limits{.connections = 3});
    server.start();
    for (std::size_t count = 1; count <= 60; ++count) {
        tell(server.port(), request(1, u8(0) + u32(0) + str16(std::u16string(count, u'x'))));
    }
    const auto answer = messagesOf(ask(server.port(), requestForRegions()));
    EXPECT_EQ(FieldCursor(answer.at(0)).number(2), 60U);
}

TEST(HostilePeer, aResetLeavesTheServerAnswering) {
    RunningServer server;
    server.start();
    for (int round = 0; round < 20; ++round) {
        TestClient client(server.port());
        client.send(round % 2 == 0 ? requestForRegions() : hex("01 09 00 00"));
        client.reset();
    }
    EXPECT_TRUE(answers(server));
}

TEST(HostilePeer, silentPeersDoNotHoldUpTheEnd) {
    RunningServer server;
    server.start();
    TestClient silent(server.port());
    TestClient half(server.port());
    half.send(hex("01 09 00"));
    EXPECT_TRUE(answers(server));
    server.stop();
    EXPECT_TRUE(silent.isClosedSilently());
    EXPECT_TRUE(half.isClosedSilently());
}

} // namespace
} // namespace server
