#pragma once

#include "server/commands/ReplyStream.h"
#include "server/store/ListQuery.h"

#include <utility>

namespace server {

// The count to announce for a list of so many records; a list that is too long is cut, which is logged.
[[nodiscard]] std::int64_t announcedCount(std::int64_t count);

// A list: the count and the rows of one snapshot, streamed from the database. The columns of the rows are the fields of
// R.
template <protocol::Record R>
class ListStream final : public ReplyStream {
public:
    // The function returns the Listing.
    template <class List>
    ListStream(StoreConnection& connection, List&& list) : moment_(connection), listing_(std::forward<List>(list)()) {
        listing_.count = announcedCount(listing_.count);
    }

    bool append(ReplyBuffer& buffer, std::size_t wanted) override {
        if (!announced_) {
            buffer.putCountFrame(static_cast<std::uint16_t>(listing_.count));
        }
        announced_ = true;
        while (listing_.count > 0 && buffer.size() < wanted && listing_.rows.next()) {
            buffer.beginFrame();
            buffer.putRow<R>(listing_.rows);
            buffer.endFrame();
            --listing_.count;
        }
        return listing_.count > 0;
    }

private:
    StoreConnection::Moment moment_;
    Listing listing_;
    bool announced_ = false;
};

// A reply of one message; nothing is sent when there is none.
template <protocol::Record R>
class SingleReplyStream final : public ReplyStream {
public:
    explicit SingleReplyStream(std::optional<R> reply) : reply_(std::move(reply)) {}

    bool append(ReplyBuffer& buffer, std::size_t) override {
        if (reply_) {
            buffer.putFrame(*reply_);
        }
        return false;
    }

private:
    std::optional<R> reply_;
};

} // namespace server
