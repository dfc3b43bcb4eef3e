#include "client/CQVXAdminClass.h"
#include "fuzz/Expect.h"
#include "fuzz/Fuzzer.h"
#include "fuzz/Input.h"
#include "fuzz/Operations.h"
#include "fuzz/PeerPlatform.h"

// A console, and a server that answers each command with arbitrary bytes. Input: how the answer arrives, what is asked,
// and the answer.

namespace {

constexpr std::size_t firstOperation = 128; // smaller values are opcodes

void callByNumber(client::CQVXAdminClass& client, std::uint8_t opcode) {
    std::vector<protocol::FieldValue> fields;
    const auto* const command = protocol::findCommand(opcode);
    if (command != nullptr && command->otherRecord.layout != nullptr) {
        fields.push_back({command->otherRecord.firstByte});
    }
    for (const bool withFields : {false, true}) {
        const auto reply = client.rawCall(opcode, withFields ? std::span(fields) : std::span(fields).first(0));
        for (const auto& record : reply.records) {
            fuzz::expect(!record.empty());
        }
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Input input(data, size);
    const std::uint8_t manner = input.byte();
    const std::uint8_t choice = input.byte();
    fuzz::peer().play(manner, input.rest());
    auto settings = std::make_shared<client::CQVXAdminClassProperties>();
    settings->host = "127.0.0.1";
    client::CQVXAdminClass client(settings);

    fuzz::tolerate([&] {
        if (choice < firstOperation) {
            callByNumber(client, choice);
        } else if (const auto all = fuzz::operations(); choice - firstOperation < all.size()) {
            all[choice - firstOperation].run(client);
        }
    });
    fuzz::expect(client.transport == nullptr);
    return 0;
}
