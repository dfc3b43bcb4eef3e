#pragma once

#include "protocol/estate/StatusReply.h"
#include "server/commands/ReplyBuffer.h"
#include "server/store/StoreConnection.h"

#include <functional>

namespace server {

// A requested change, and whether the console waits for its outcome.
struct Change {
    bool isAnswered = false; // the console waits for the outcome
    // Makes the change in one transaction, or refuses it. Never throws: a database error becomes a refusal.
    std::function<protocol::StatusReply(StoreConnection&, ReplyBuffer&)> make;
};

// The outcome of a change whose reply does not contain it.
template <protocol::Record Reply>
struct Outcome {
    protocol::StatusReply status;
    Reply reply;
};

// The refusal of a change that failed in the database; also logged.
[[nodiscard]] protocol::StatusReply databaseRefused(const char* reason);

} // namespace server
