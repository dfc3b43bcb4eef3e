#pragma once

#include "server/commands/ReplyBuffer.h"
#include "server/store/StoreConnection.h"

namespace server {

// The answer to a read request, built piece by piece straight from the database.
class ReplyStream {
public:
    virtual ~ReplyStream() = default;

    // Appends the next frames until the buffer holds at least the wanted number of bytes; false once all frames have
    // been appended. Throws StoreError.
    virtual bool append(ReplyBuffer& buffer, std::size_t wanted) = 0;
};

// The longest list: a console reads the count as a signed number, and takes a larger one for an empty list.
constexpr std::int64_t longestList = 32767;

} // namespace server
