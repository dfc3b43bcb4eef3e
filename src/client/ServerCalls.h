#pragma once

#include "client/Exchange.h"
#include "protocol/WireOrder.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

// The shapes of a command as one call each. The catalogue's row decides about connection, version, reader form and
// failure; the summary is for the command observer.
namespace client {

// The message of a request's fields; null for a request without fields, which sends none.
template <class Request>
[[nodiscard]] std::unique_ptr<wire::Message> dataMessageOf(const Request& request) {
    if constexpr (protocol::layoutOf<Request>.fields.empty()) {
        return nullptr;
    } else {
        return protocol::makeDataMessage(request);
    }
}

// A command without a reply; false when there is no connection.
template <class Request>
bool sendCommand(CQVXAdminClass2& client, const Request& request, std::string summary = {}) {
    const auto& command = protocol::commandOf<Request>();
    auto data = dataMessageOf(request);
    announceRequest(client, command, data.get());
    Exchange exchange(client, command, std::move(summary));
    if (!exchange.connect()) {
        return false;
    }
    exchange.send(std::move(data));
    return true;
}

// A command with a single reply; empty when there is no connection, or no reply and the row allows that.
template <class Reply, class Request>
[[nodiscard]] std::optional<Reply> askServer(CQVXAdminClass2& client, const Request& request,
                                             std::string summary = {}) {
    Exchange exchange(client, protocol::commandOf<Request>(), std::move(summary));
    if (!exchange.connect()) {
        return std::nullopt;
    }
    exchange.send(dataMessageOf(request));
    const auto message = exchange.receive();
    if (!message) {
        return std::nullopt;
    }
    return exchange.run([&] { return std::optional(protocol::read<Reply>(*message)); });
}

// Reads count frames of one record each and appends them to records. Ends early where the row's reader form allows it.
template <class R>
void readRecords(Exchange& exchange, std::int16_t count, std::vector<R>& records) {
    records.reserve(records.size() + static_cast<std::size_t>(std::max<std::int16_t>(count, 0)));
    std::unique_ptr<wire::Message> message;
    for (std::uint32_t index = 0; std::cmp_less(index, count); ++index) {
        message = exchange.receive(std::move(message));
        if (!message) {
            return;
        }
        exchange.run([&] {
            records.emplace_back();
            try {
                protocol::read(*message, records.back());
            } catch (...) {
                records.pop_back();
                throw;
            }
        });
        exchange.noteRecords(index + 1U);
    }
}

// A command whose reply is a list, which replaces the content of records, in the order of the wire. Returns the count
// that the server announced, which exceeds the records of a list that was cut short; empty when there is no connection,
// or no count arrived and the row allows that.
template <class R, class Request>
[[nodiscard]] std::optional<std::int16_t> readList(CQVXAdminClass2& client, const Request& request,
                                                   std::vector<R>& records, std::string summary = {}) {
    records.clear();
    Exchange exchange(client, protocol::commandOf<Request>(), std::move(summary));
    if (!exchange.connect()) {
        return std::nullopt;
    }
    exchange.send(dataMessageOf(request));
    const auto message = exchange.receive();
    if (!message) {
        return std::nullopt;
    }
    const std::int16_t count = exchange.run([&] { return Exchange::readCount(*message); });
    readRecords(exchange, count, records);
    return count;
}

// The same for callers that accept a list that was cut short.
template <class R, class Request>
[[nodiscard]] bool listRecords(CQVXAdminClass2& client, const Request& request, std::vector<R>& records,
                               std::string summary = {}) {
    return readList(client, request, records, std::move(summary)).has_value();
}

// The same for callers that need the whole list: also false when it was cut short.
template <class R, class Request>
[[nodiscard]] bool listAllRecords(CQVXAdminClass2& client, const Request& request, std::vector<R>& records,
                                  std::string summary = {}) {
    const auto announced = readList(client, request, records, std::move(summary));
    return announced && std::cmp_greater_equal(records.size(), std::max<std::int16_t>(*announced, 0));
}

} // namespace client
