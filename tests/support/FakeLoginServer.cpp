#include "tests/support/FakeLoginServer.h"

#include "tests/support/Bytes.h"

namespace support {
namespace {

// A public key of 2048 bits, whose private half was discarded.
constexpr const char* publicKey =
    "30 82 01 0a 02 82 01 01 00 a6 45 db 74 05 42 8e 7c cc 86 23 fd 0e e1 e1 d3 b6 f9 4c b6 81 d6 8b "
    "df 6a a1 5b 5e 6a e4 c9 55 92 d5 e0 39 0d 7c 4a 7f a4 33 7f e5 5b b0 d5 46 7a 39 fa d9 2a 8a be "
    "64 fe e8 26 7e 81 ba dd 38 bb 66 f2 a7 cc 0c 2c 7f 43 71 cd a9 01 8d b4 a0 cb 0d 8c 54 9b 32 d8 "
    "69 26 d4 5c 49 03 e9 98 91 02 ef 1a b0 4d 41 b5 2d 22 fe e3 96 de 54 b0 6d 83 5b 78 bc f4 89 7a "
    "d9 76 a3 e0 fc f1 70 2a d2 7e ce 88 6e 0f e7 b6 b6 d6 d5 c0 88 a2 7c 3e 13 89 61 eb 61 04 b0 b5 "
    "b9 3f fb 41 0d 0f 18 ee a9 d7 0d 69 ad 37 86 0d f0 4d b6 bd c9 bd 17 c0 ab a6 8b a6 d6 46 08 73 "
    "6a 31 f1 62 64 63 56 3e 37 f9 f4 d9 1b de f5 6e 49 00 af 30 4a 42 cd 61 d1 13 69 c2 e9 63 4d 7e "
    "b3 75 16 1c 57 55 6c 26 59 9a 18 21 d4 c3 4d a7 7b 4c 92 60 81 ea 28 b6 30 1d d8 8e 07 16 ab 6c "
    "a3 65 5e df 05 0b 11 86 91 02 03 01 00 01 ";

void sendBlock(ScriptedServer::Connection& connection, const Bytes& block) {
    connection.send(
        {static_cast<std::uint8_t>(block.size() & 0xFF), static_cast<std::uint8_t>(block.size() >> 8), 0, 0});
    connection.expect(1); // acknowledgement
    connection.send(block);
    connection.expect(1); // result
}

void receiveBlock(ScriptedServer::Connection& connection) {
    const Bytes length = connection.expect(4);
    connection.send({0});
    connection.expect(static_cast<std::size_t>(length[0]) | static_cast<std::size_t>(length[1]) << 8);
    connection.send({1});
}

void giveKey(ScriptedServer::Connection& connection) {
    connection.expectFrame();
    connection.send(frame({dataMessage(hex("00 00  00 00 00 00"))}));
    sendBlock(connection, hex(publicKey));
}

void logIn(ScriptedServer::Connection& connection, std::uint16_t status) {
    connection.expectFrame();
    for (int credential = 0; credential < 3; ++credential) {
        receiveBlock(connection);
    }
    connection.send(
        frame({dataMessage({static_cast<std::uint8_t>(status & 0xFF), static_cast<std::uint8_t>(status >> 8)})}));
}

std::vector<ScriptedServer::Script> scriptsFor(const std::vector<std::uint16_t>& statuses) {
    std::vector<ScriptedServer::Script> scripts;
    for (const std::uint16_t status : statuses) {
        scripts.emplace_back(giveKey);
        scripts.emplace_back([status](ScriptedServer::Connection& connection) { logIn(connection, status); });
    }
    return scripts;
}

} // namespace

FakeLoginServer::FakeLoginServer(const std::vector<std::uint16_t>& statuses) : server_(scriptsFor(statuses)) {}

} // namespace support
