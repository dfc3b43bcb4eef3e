#pragma once

#include "client/RecordCursor.h"
#include "client/ServerCalls.h"

namespace client {

// A list that is fetched by the first call for a record and from then on only handed out, from the last record to the
// first: whoever wants it afresh makes a new client.
template <class R>
class OneTimeList {
public:
    // False when there are none left, or when the list could not be fetched as a whole: what has come of it then stays
    // in records(), and the next call fetches again.
    template <class Request>
    bool next(CQVXAdminClass2& client, const Request& request, R& record) {
        if (!fetched_)
            fetched_ = fetch(client, request);
        if (!fetched_)
            return false;
        auto one = cursor_.next();
        if (!one)
            return false;
        record = std::move(*one);
        return true;
    }

    [[nodiscard]] const std::vector<R>& records() const { return cursor_.records(); }

private:
    template <class Request>
    bool fetch(CQVXAdminClass2& client, const Request& request) {
        cursor_.fill({});
        Exchange exchange(client, protocol::commandOf<Request>());
        if (!exchange.connect())
            return false;
        exchange.send(dataMessageOf(request));
        const auto first = exchange.receive();
        if (!first)
            return false;
        const auto count = exchange.run([&] { return Exchange::readCount(*first); });
        std::vector<R> records;
        readRecords(exchange, count, records);
        const bool whole = records.size() == count;
        cursor_.fill(std::move(records));
        return whole;
    }

    RecordCursor<R> cursor_;
    bool fetched_ = false;
};

} // namespace client
