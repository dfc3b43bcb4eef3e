#include "server/net/RequestFrame.h"

#include "server/net/Dropped.h"
#include "wire/Message.h"

#include <cstring>

namespace server {

namespace {

constexpr std::size_t commandSize = 9;

template <class Number>
Number numberAt(std::span<const std::uint8_t> bytes, std::size_t offset) {
    Number value{};
    std::memcpy(&value, bytes.data() + offset, sizeof value);
    return value;
}

} // namespace

RequestFrame parseRequestFrame(std::uint8_t count, std::span<const std::uint8_t> data) {
    RequestFrame request;
    bool hasCommand = false;
    bool hasData = false;
    for (int index = 0; index < count; ++index) {
        if (data.size() < wire::Message::headerSize) {
            throw Dropped("the frame is shorter than its messages");
        }
        const auto length = numberAt<std::uint32_t>(data, 1);
        if (length < wire::Message::headerSize || length > data.size()) {
            throw Dropped("the length of a message does not fit its frame");
        }
        const auto message = data.first(length);
        data = data.subspan(length);
        const auto kind = static_cast<wire::MessageKind>(message[0]);
        if (kind == wire::MessageKind::Command && !hasCommand && length == commandSize) {
            hasCommand = true;
            request.version = numberAt<std::uint16_t>(message, 5);
            request.opcode = numberAt<std::uint16_t>(message, 7);
        } else if (kind == wire::MessageKind::Data && !hasData) {
            hasData = true;
            request.fields = message.subspan(wire::Message::headerSize);
        } else {
            throw Dropped("the frame contains an unexpected message");
        }
    }
    if (!hasCommand) {
        throw Dropped("the frame contains no command");
    }
    if (!data.empty()) {
        throw Dropped("the frame is longer than its messages");
    }
    return request;
}

} // namespace server
