#include "tests/adversity/ReplyReader.h"

#include "client/Exchange.h"
#include "protocol/FieldValue.h"
#include "wire/CTrans.h"

#include <algorithm>
#include <array>
#include <exception>
#include <string_view>

namespace adversity {

namespace {

constexpr std::string_view endedEarly = "the reply ended early";

constexpr std::array<std::string_view, 6> contract{
    "failed to get messages",       "failed to get message",       "No data received from server",
    "plain: Reading outside scope", "plain: Reading out of scope", "invalid uuid string",
};

void keep(ReadOutcome& outcome, const protocol::FieldRecord& record) {
    wire::Message again;
    again.beginMessage(0);
    protocol::writeField(again, {record});
    const auto bytes = again.bytes();
    outcome.read.insert(outcome.read.end(), bytes.begin(), bytes.end());
}

// False when the reply ended early.
bool readAll(client::Exchange& exchange, const protocol::Command& command, const protocol::RecordLayout& layout,
             ReadOutcome& outcome) {
    auto message = exchange.receive();
    if (!message) {
        return false;
    }
    if (command.reply != protocol::ReplyShape::list) {
        keep(outcome, protocol::readFields(*message, layout));
        return true;
    }
    const auto count = client::Exchange::readCount(*message);
    for (std::uint16_t index = 0; index < count; ++index) {
        message = exchange.receive(std::move(message));
        if (!message) {
            return false;
        }
        keep(outcome, protocol::readFields(*message, layout));
    }
    return true;
}

void end(ReadOutcome& outcome, const std::string& text) {
    const bool known = text == endedEarly || std::ranges::find(contract, text) != contract.end();
    (known ? outcome.failure : outcome.breach) = text;
}

} // namespace

ReadOutcome readReply(const protocol::Command& command, const protocol::RecordLayout& layout, MemoryPeer& peer) {
    ReadOutcome outcome;
    client::CQVXAdminClass2 client(std::make_shared<client::CQVXAdminClassProperties>());
    try {
        client::Exchange exchange(client, command);
        if (!exchange.connect(std::make_unique<trans::CTrans>(peer, peer), 1)) {
            end(outcome, "no connection");
            return outcome;
        }
        exchange.send(nullptr);
        outcome.whole = readAll(exchange, command, layout, outcome);
        if (!outcome.whole) {
            end(outcome, std::string(endedEarly));
        }
    } catch (const char* text) {
        end(outcome, std::string("plain: ") + text);
    } catch (const std::exception& error) {
        end(outcome, error.what());
    }
    return outcome;
}

} // namespace adversity
