#include "fuzz/Expect.h"
#include "fuzz/Fuzzer.h"
#include "fuzz/Input.h"
#include "protocol/Catalogue.h"
#include "protocol/FieldValue.h"

#include <cstring>
#include <vector>

// The fields of a message, read by a layout of the catalogue. Input: an opcode, which of its layouts, and the fields.

namespace {

const protocol::RecordLayout* layoutOf(const protocol::Command& command, std::uint8_t which) {
    switch (which) {
    case 0:
        return command.request;
    case 1:
        return command.replyRecord;
    case 2:
        return command.otherRecord.layout;
    default:
        return which - 3U < command.forms.size() ? command.forms[which - 3U].layout : nullptr;
    }
}

wire::Message messageOf(std::span<const std::uint8_t> fields) {
    const auto length = static_cast<std::uint32_t>(wire::Message::headerSize + fields.size());
    std::vector<std::uint8_t> bytes{1};
    bytes.resize(length);
    std::memcpy(bytes.data() + 1, &length, sizeof length);
    std::ranges::copy(fields, bytes.begin() + wire::Message::headerSize);
    wire::Message message;
    message.loadMessage(bytes.data(), length);
    return message;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Input input(data, size);
    const auto* const command = protocol::findCommand(input.byte());
    const auto* const layout = command == nullptr ? nullptr : layoutOf(*command, input.byte());
    if (layout == nullptr) {
        return 0;
    }
    auto message = messageOf(input.rest());

    fuzz::tolerate([&] {
        const auto record = protocol::readFields(message, *layout);
        fuzz::expect(record.size() == layout->fields.size());
        wire::Message again;
        again.beginMessage(0);
        for (const auto& field : record) {
            protocol::writeField(again, field.value);
        }
    });
    fuzz::expect(message.cursor() <= message.size());
    return 0;
}
