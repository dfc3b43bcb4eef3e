#pragma once

#include "protocol/Catalogue.h"
#include "protocol/estate/Printer.h"
#include "protocol/estate/Region.h"
#include "tests/server/support/TestClient.h"

#include <algorithm>
#include <optional>
#include <stdexcept>

// Sends and receives records over connections that may fail in every way.
namespace torture {

using support::Bytes;

template <class Request>
[[nodiscard]] Bytes requestOf(const Request& request) {
    const auto command = support::commandMessage(Request::opcode, protocol::commandOf<Request>().version);
    if (protocol::layoutOf<Request>.fields.empty()) {
        return support::frame({command});
    }
    const auto message = protocol::makeDataMessage(request);
    return support::frame({Bytes(message->bytes().begin(), message->bytes().end()), command});
}

template <class Record>
[[nodiscard]] Record recordOf(const Bytes& message) {
    wire::Message loaded;
    loaded.loadMessage(message.data(), static_cast<std::uint32_t>(message.size()));
    return protocol::read<Record>(loaded);
}

// The messages of all complete frames.
[[nodiscard]] inline std::vector<Bytes> wholeMessages(Bytes frames) {
    constexpr std::size_t header = 9;
    std::size_t end = 0;
    while (frames.size() - end >= header) {
        const auto size = server::test::FieldCursor(frames, end + 1).number(4);
        if (frames.size() - end - header < size) {
            break;
        }
        end += header + size;
    }
    frames.resize(end);
    return server::test::messagesOf(frames);
}

// The only reply; none when the connection ended before it arrived.
template <class Reply, class Request>
[[nodiscard]] std::optional<Reply> askFor(std::uint16_t port, const Request& request) {
    const auto messages = wholeMessages(server::test::ask(port, requestOf(request)));
    return messages.size() == 1 ? std::optional(recordOf<Reply>(messages.front())) : std::nullopt;
}

// A complete list; none otherwise.
template <class Record, class Request>
[[nodiscard]] std::optional<std::vector<Record>> listOf(std::uint16_t port, const Request& request) {
    const auto messages = wholeMessages(server::test::ask(port, requestOf(request)));
    if (messages.empty() || server::test::FieldCursor(messages.front()).number(2) != messages.size() - 1) {
        return std::nullopt;
    }
    std::vector<Record> records;
    for (auto message = messages.begin() + 1; message != messages.end(); ++message) {
        records.push_back(recordOf<Record>(*message));
    }
    return records;
}

[[nodiscard]] inline std::optional<std::vector<protocol::RegionRecord>> regionsAt(std::uint16_t port) {
    auto reply = askFor<protocol::ListRegionsReply>(port, protocol::ListRegionsRequest{});
    return reply ? std::optional(std::move(reply->regions)) : std::nullopt;
}

[[nodiscard]] inline std::optional<std::vector<protocol::PrinterRecord>>
recordsIn(std::uint16_t port, std::int32_t regionId, std::uint16_t mode) {
    return listOf<protocol::PrinterRecord>(
        port, protocol::ListPrinterRecordsRequest{.printerId = {}, .regionId = regionId, .mode = mode});
}

[[nodiscard]] inline protocol::CreateRecordRequest followQueue(std::int32_t regionId, wire::WideString name) {
    protocol::CreateRecordRequest request;
    request.record.recordType = protocol::recordType::followQueue;
    request.record.regionId = regionId;
    request.record.name = std::move(name);
    return request;
}

} // namespace torture
