#pragma once

#include "client/RecordCursor.h"
#include "client/ServerCalls.h"

// Lists that come into a cursor.
namespace client {

// A command with a list for a reply, which takes the place of what the cursor held; the cursor is empty when the
// command throws. Change is made to each record. False when there is no connection or no count came.
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

} // namespace client
