#include "tests/server/support/RunningServer.h"
#include "tests/server/support/Sealing.h"
#include "tests/server/support/TestClient.h"

#include <gtest/gtest.h>

namespace server {
namespace {

using support::hex;
using support::toHex;
using namespace test; // the words of requests

class ServerLogin : public ::testing::Test {
protected:
    ServerLogin() {
        server_.accounts().save(u"admin", u"secret");
        server_.start();
    }

    Bytes fetchKey() {
        TestClient client(server_.port());
        client.send(request(78, std::nullopt));
        const auto message = client.receiveFrame();
        FieldCursor cursor(message);
        EXPECT_EQ(cursor.text8(), "RSA");
        EXPECT_EQ(cursor.number(4), 270U);
        const auto length = client.receive(4);
        EXPECT_EQ(toHex(length), "0E 01 00 00");
        client.send({0});
        auto key = client.receive(270);
        client.send({1});
        EXPECT_TRUE(client.isClosedSilently());
        return key;
    }

    // One sealed credential, with every byte of the exchange.
    static void sendBlock(TestClient& client, const Bytes& block) {
        client.send(u32(static_cast<std::uint32_t>(block.size())));
        EXPECT_EQ(client.receive(1).at(0), block.size() & 0xFF);
        client.send(block);
        EXPECT_EQ(client.receive(1).at(0), 1);
    }

    Bytes logIn(const std::u16string& user, const std::u16string& password, const Bytes& numbers = hex("03 00 00 00")) {
        const auto key = fetchKey();
        TestClient client(server_.port());
        client.send(request(22, numbers));
        for (const auto& credential : {user, std::u16string(u"OFFICE"), password}) {
            sendBlock(client, seal(key, credential));
        }
        return client.receiveAll();
    }

    std::string listRegions() { return toHex(ask(server_.port(), request(0, u8(0) + u32(0) + u16(0)))); }

    RunningServer server_{Limits{}, std::chrono::minutes(10)};
};

constexpr auto statusOne = "01 07 00 00 00 09 00 00 00 01 07 00 00 00 01 00";
constexpr auto statusTwo = "01 07 00 00 00 0A 00 00 00 01 07 00 00 00 02 00";
constexpr auto statusThree = "01 07 00 00 00 0B 00 00 00 01 07 00 00 00 03 00";

TEST_F(ServerLogin, theRightPasswordIsAnsweredWithOne) {
    EXPECT_EQ(toHex(logIn(u"admin", u"secret")), statusOne);
}

TEST_F(ServerLogin, aWrongNameOrPasswordIsAnsweredWithTwo) {
    EXPECT_EQ(toHex(logIn(u"admin", u"wrong")), statusTwo);
    EXPECT_EQ(toHex(logIn(u"nobody", u"secret")), statusTwo);
}

TEST_F(ServerLogin, aConsoleOfAnotherVersionIsAnsweredWithThree) {
    EXPECT_EQ(toHex(logIn(u"admin", u"secret", hex("04 00 00 00"))), statusThree);
    EXPECT_EQ(toHex(logIn(u"admin", u"secret", hex("03 00 01 00"))), statusThree);
    EXPECT_EQ(listRegions(), "");
}

TEST_F(ServerLogin, bytesThatCannotBeUnsealedAreAnsweredWithTwo) {
    TestClient client(server_.port());
    client.send(request(22, hex("03 00 00 00")));
    sendBlock(client, Bytes(256, 0x5A));
    sendBlock(client, {});
    sendBlock(client, Bytes(4096, 0xFF));
    EXPECT_EQ(toHex(client.receiveAll()), statusTwo);
}

TEST_F(ServerLogin, aCommandBeforeTheLoginIsNotAnsweredAndNotCarriedOut) {
    tell(server_.port(), request(1, u8(0) + u32(0) + str16(u"North")));
    EXPECT_EQ(listRegions(), "");
    EXPECT_EQ(toHex(logIn(u"admin", u"wrong")), statusTwo);
    EXPECT_EQ(listRegions(), "");
    EXPECT_EQ(toHex(logIn(u"admin", u"secret")), statusOne);
    EXPECT_EQ(listRegions(), "01 07 00 00 00 08 00 00 00 01 07 00 00 00 00 00");
}

TEST_F(ServerLogin, theFirstBlockMayComeTogetherWithTheFrame) {
    const auto key = fetchKey();
    TestClient client(server_.port());
    client.send(request(22, hex("03 00 00 00")) + u32(256));
    EXPECT_EQ(toHex(client.receive(1)), "00");
    client.send(seal(key, u"admin"));
    EXPECT_EQ(toHex(client.receive(1)), "01");
    sendBlock(client, seal(key, u""));
    sendBlock(client, seal(key, u"secret"));
    EXPECT_EQ(toHex(client.receiveAll()), statusOne);
}

TEST_F(ServerLogin, aBlockThatIsTooLongEndsTheConnection) {
    TestClient client(server_.port());
    client.send(request(22, hex("03 00 00 00")) + u32(4097));
    EXPECT_TRUE(client.isClosedSilently());
    TestClient reject(server_.port());
    const std::string text = "QVX - Unknown Command";
    reject.send(request(22, hex("03 00 00 00")) + Bytes(text.begin(), text.end()) + Bytes{0});
    EXPECT_TRUE(reject.isClosedSilently());
}

TEST_F(ServerLogin, aLoginThatBreaksOffHoldsUpNobody) {
    std::vector<TestClient> broken;
    for (int count = 0; count < 5; ++count) {
        broken.emplace_back(server_.port());
        broken.back().send(request(22, hex("03 00 00 00")) + u32(256));
    }
    TestClient(server_.port()).send(request(78, std::nullopt)).reset();
    EXPECT_EQ(toHex(logIn(u"admin", u"secret")), statusOne);
}

} // namespace
} // namespace server
