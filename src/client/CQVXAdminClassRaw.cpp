#include "client/CQVXAdminClass.h"

#include "client/ConnectFailed.h"
#include "client/Exchange.h"
#include "protocol/estate/Login.h"
#include "protocol/estate/Region.h"

#include <stdexcept>
#include <utility>

namespace client {
namespace {

const protocol::Command& callable(std::uint16_t opcode) {
    const protocol::Command* const command = protocol::findCommand(opcode);
    if (command == nullptr) {
        throw std::invalid_argument("No command has the opcode " + std::to_string(opcode));
    }
    if (opcode == protocol::LoginRequest::opcode) {
        throw std::invalid_argument("A login is more than one command");
    }
    return *command;
}

// The layout of the records in the reply to these fields.
const protocol::RecordLayout& recordLayout(const protocol::Command& command,
                                           std::span<const protocol::FieldValue> fields) {
    const auto* const first = fields.empty() ? nullptr : std::get_if<std::uint8_t>(&fields.front().value);
    if (command.otherRecord.layout != nullptr && first != nullptr && *first == command.otherRecord.firstByte) {
        return *command.otherRecord.layout;
    }
    return *command.replyRecord;
}

void readList(Exchange& exchange, RawReply& reply, const protocol::RecordLayout& layout) {
    const auto first = exchange.receive();
    if (!first) {
        reply.complete = false;
        return;
    }
    const bool onlyCount = first->remaining() == sizeof(std::uint16_t);
    const std::int16_t count = exchange.run([&] { return Exchange::readCount(*first); });
    const bool allInOne = reply.command->opcode == protocol::ListRegionsRequest::opcode && !onlyCount;
    for (std::uint32_t index = 0; std::cmp_less(index, count) && reply.complete; ++index) {
        if (allInOne) {
            exchange.run([&] { reply.records.push_back(protocol::readFields(*first, layout)); });
        } else if (const auto message = exchange.receive()) {
            exchange.run([&] { reply.records.push_back(protocol::readFields(*message, layout)); });
        } else {
            reply.complete = false;
            break;
        }
        exchange.noteRecords(index + 1U);
    }
}

} // namespace

RawReply CQVXAdminClass::rawCall(std::uint16_t opcode, std::span<const protocol::FieldValue> fields) {
    RawReply reply;
    reply.command = &callable(opcode);
    auto data = protocol::makeDataMessage(fields);
    if (reply.command->reply == protocol::ReplyShape::none) {
        announceRequest(*this, *reply.command, data.get());
    }
    Exchange exchange(*this, *reply.command);
    if (!exchange.connect()) {
        throw ConnectFailed();
    }
    exchange.send(std::move(data));
    if (reply.command->reply == protocol::ReplyShape::list) {
        readList(exchange, reply, recordLayout(*reply.command, fields));
    } else if (reply.command->reply != protocol::ReplyShape::none) {
        if (const auto message = exchange.receive()) {
            exchange.run([&] { reply.records.push_back(protocol::readFields(*message, *reply.command->replyRecord)); });
        } else {
            reply.complete = false;
        }
    }
    return reply;
}

} // namespace client
