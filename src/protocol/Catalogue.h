#pragma once

#include "protocol/RecordLayout.h"
#include "protocol/WireOrder.h"

namespace protocol {

// What comes back for a command.
enum class ReplyShape : std::uint8_t {
    none,           // nothing is read
    single,         // one message
    list,           // a message with a u16 count, then a frame with one message for each record
    singleAndBlock, // one message, then a raw block
};

// How a command gets its connection. Either way it serves that one command.
enum class Connection : std::uint8_t {
    open,   // a failed connect throws
    member, // a failed connect makes the operation report false
    own,    // apart from the settings, with its own time-out
};

// What a reader does about a missing reply.
enum class ReaderForm : std::uint8_t {
    none,   // nothing is read
    plain,  // the reply ends there
    middle, // a missing message throws
    strict, // a frame that cannot be read throws, and a missing message throws
};

// Whether a frame that could not be built or had no socket is noticed.
enum class SendForm : std::uint8_t {
    plain,
    guarded, // throws "failed to send messages"
};

// One of several forms that the request of one opcode can have.
struct RequestForm {
    std::string_view when; // for people: "action 1 adds, 2 updates"
    const RecordLayout* layout = nullptr;
};

// What a list contains instead of its usual records when its request begins with that byte.
struct OtherRecord {
    std::uint8_t firstByte = 0;
    const RecordLayout* layout = nullptr;
};

// One command of the protocol.
struct Command {
    std::uint16_t opcode = 0;
    std::uint16_t version = 1;
    std::string_view name;
    std::string_view purpose; // one line for people
    ReplyShape reply = ReplyShape::none;
    Connection connection = Connection::member;
    bool closes = true; // the console closes the connection itself
    ReaderForm reader = ReaderForm::none;
    SendForm send = SendForm::plain;
    const RecordLayout* request = nullptr; // null: several forms
    std::span<const RequestForm> forms = {};
    const RecordLayout* replyRecord = nullptr; // for a list, that of its records; null: none
    OtherRecord otherRecord = {};
};

// All commands, by opcode. Opcodes 7, 8, 26, 35, 63 and 72 are not in use.
[[nodiscard]] std::span<const Command> catalogue();

// Null for an opcode that is not in use.
[[nodiscard]] const Command* findCommand(std::uint16_t opcode);

// The row of a request's type.
template <class Request>
[[nodiscard]] const Command& commandOf() {
    return *findCommand(Request::opcode);
}

} // namespace protocol
