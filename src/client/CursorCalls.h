#pragma once

#include "client/RecordCursor.h"
#include "client/ServerCalls.h"

// Lists read into a cursor.
namespace client {

// Runs a command whose reply is a list, which replaces the content of the cursor; the cursor is empty when the command
// throws. Applies change to each record. False when there is no connection or no count arrived.
template <class R, class Request, class Change>
bool fillCursor(CQVXAdminClass2& client, RecordCursor<R>& cursor, const Request& request, std::string summary,
                Change&& change) {
    cursor.clear();
    std::vector<R> records;
    const auto announced = readList(client, request, records, std::move(summary));
    std::ranges::for_each(records, change);
    cursor.fill(std::move(records), announced.value_or(0));
    return announced.has_value();
}

template <class R, class Request>
bool fillCursor(CQVXAdminClass2& client, RecordCursor<R>& cursor, const Request& request, std::string summary = {}) {
    return fillCursor(client, cursor, request, std::move(summary), [](const R&) {});
}

// The same where a console keeps more of a record than what travels, which complete makes of it.
template <class Sent, class R, class Request, class Complete>
bool fillCompleted(CQVXAdminClass2& client, RecordCursor<R>& cursor, const Request& request, std::string summary,
                   Complete&& complete) {
    cursor.clear();
    std::vector<Sent> sent;
    const auto announced = readList(client, request, sent, std::move(summary));
    std::vector<R> records;
    records.reserve(sent.size());
    for (Sent& record : sent) {
        records.push_back(complete(std::move(record)));
    }
    cursor.fill(std::move(records), announced.value_or(0));
    return announced.has_value();
}

} // namespace client
