#pragma once

#include "client/CursorCalls.h"

namespace client {

// A list that is fetched with the first call for a record and then only returned, from the last record to the first:
// make a new client to fetch it again.
template <class R>
class OneTimeList {
public:
    // False when none are left, or when the list could not be fetched as a whole: records that did arrive then stay in
    // records(), and the next call fetches again.
    template <class Request>
    bool next(CQVXAdminClass2& client, const Request& request, R& record) {
        if (!fetched_) {
            fetched_ = fetch(client, request);
        }
        return fetched_ && cursor_.next(record);
    }

    [[nodiscard]] const std::vector<R>& records() const { return cursor_.records(); }

private:
    template <class Request>
    bool fetch(CQVXAdminClass2& client, const Request& request) {
        return fillCursor(client, cursor_, request) && std::cmp_greater_equal(records().size(), cursor_.announced());
    }

    RecordCursor<R> cursor_;
    bool fetched_ = false;
};

} // namespace client
