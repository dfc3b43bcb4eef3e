#pragma once

#include "server/Commands.h"
#include "tests/server/support/TestClient.h"

namespace server::test {

// All frames of a server's answer to a read request, fetched in pieces of the given size.
inline Bytes answerOf(StoreConnection& connection, std::uint16_t opcode, const Bytes& fields,
                      std::size_t piece = 65536) {
    const auto answer = commands().find(opcode, fields)->answer(fields, connection);
    Bytes all;
    for (bool more = true; more;) {
        ReplyBuffer buffer;
        more = answer->append(buffer, piece);
        all = std::move(all) + Bytes(buffer.bytes().begin(), buffer.bytes().end());
    }
    return all;
}

} // namespace server::test
