#include "fuzz/Expect.h"
#include "fuzz/Fuzzer.h"
#include "fuzz/Input.h"
#include "server/net/Dropped.h"
#include "server/net/RequestFrame.h"
#include "wire/Message.h"

#include <optional>

// The data of a frame, as each end splits it into messages; and a message, read in any order.

namespace {

std::optional<server::RequestFrame> parse(std::uint8_t count, std::span<const std::uint8_t> data) {
    try {
        return server::parseRequestFrame(count, data);
    } catch (const server::Dropped&) {
        return std::nullopt;
    }
}

// Both ends agree on what a request is: at most two messages, which fill the frame.
void expectMessages(std::span<const std::uint8_t> data, std::uint8_t count) {
    for (; count > 0; --count) {
        wire::Message message;
        message.loadMessage(data.data(), static_cast<std::uint32_t>(data.size()));
        data = data.subspan(message.size());
    }
    fuzz::expect(data.empty());
}

void readFields(std::span<const std::uint8_t> order, std::span<const std::uint8_t> data) {
    wire::Message message;
    message.loadMessage(data.data(), static_cast<std::uint32_t>(data.size()));
    fuzz::expect(message.size() <= data.size());
    wire::WideString wide;
    for (const std::uint8_t kind : order) {
        switch (kind % 6) {
        case 0:
            static_cast<void>(message.getByte());
            break;
        case 1:
            static_cast<void>(message.getUInt16());
            break;
        case 2:
            static_cast<void>(message.getUInt32());
            break;
        case 3:
            static_cast<void>(message.getFloat());
            break;
        case 4:
            static_cast<void>(message.getString());
            break;
        default:
            message.getWideString(wide);
        }
        fuzz::expect(message.cursor() <= message.size());
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Input input(data, size);
    const std::uint8_t count = input.byte();
    const auto rest = input.rest();

    if (const auto request = parse(count, rest)) {
        fuzz::expect(count == 1 || count == 2);
        fuzz::expect(request->fields.size() <= rest.size());
        expectMessages(rest, count);
    }
    fuzz::tolerate([&] { readFields(rest, rest); });
    return 0;
}
