#pragma once

#include "server/commands/ReplyBuffer.h"
#include "server/store/StoreConnection.h"

namespace server {

// The answer to a request that reads, made piece by piece straight from the database.
class ReplyStream {
public:
    virtual ~ReplyStream() = default;

    // Appends the next frames until the buffer holds the wanted number of bytes or more; false once all are there.
    // Throws StoreError.
    virtual bool append(ReplyBuffer& buffer, std::size_t wanted) = 0;
};

// A console takes the count of a list as a signed number, and more than this as none at all.
constexpr std::int64_t longestList = 32767;

} // namespace server
