#include "fuzz/Expect.h"
#include "fuzz/Fuzzer.h"
#include "fuzz/Input.h"
#include "fuzz/PeerSocket.h"
#include "wire/CTrans.h"

// A connection of a console, and a peer that sends arbitrary bytes: frames and raw blocks, in any order.

namespace {

constexpr int mostSteps = 16;
constexpr std::uint32_t longestBlock = 65536;

void takeMessages(trans::CTrans& connection) {
    for (const auto kind : {wire::MessageKind::Data, wire::MessageKind::Command}) {
        while (auto message = connection.getMessage(kind)) {
            fuzz::expect(message->kind() == kind && message->rewound());
            fuzz::expect(message->size() >= wire::Message::headerSize);
            connection.reuse(std::move(message));
        }
    }
}

// Two bits choose each step.
void exchange(trans::CTrans& connection, std::uint32_t steps) {
    for (int step = 0; step < mostSteps; ++step, steps >>= 2) {
        std::string block;
        switch (steps & 3) {
        case 2:
            if (connection.receiveBlock(block, longestBlock)) {
                fuzz::expect(block.size() <= longestBlock);
            }
            break;
        case 3:
            static_cast<void>(connection.sendBlock("block"));
            break;
        default:
            if (connection.getMessages({}, nullptr)) {
                takeMessages(connection);
            }
        }
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Input input(data, size);
    const std::uint8_t manner = input.byte();
    std::uint32_t steps = 0;
    for (int index = 0; index < 4; ++index) {
        steps = steps << 8 | input.byte();
    }
    fuzz::PeerClock clock;
    fuzz::PeerSocket peer(clock);
    peer.play(manner, input.rest());

    trans::CTrans connection(peer, clock);
    fuzz::expect(connection.connect(10, {}));
    connection.addMessage(wire::makeCommandMessage(29, 1));
    fuzz::expect(connection.sendMessages({}));
    fuzz::tolerate([&] { exchange(connection, steps); });
    connection.disconnect(0);
    return 0;
}
