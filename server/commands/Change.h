#pragma once

#include "protocol/estate/StatusReply.h"
#include "server/commands/ReplyBuffer.h"
#include "server/store/StoreConnection.h"

#include <functional>

namespace server {

// A change that was asked for, and what to tell the console about it.
struct Change {
    bool isAnswered = false; // the console waits for the outcome
    // Makes it in one transaction, or refuses. Never throws: an error of the database becomes a refusal.
    std::function<protocol::StatusReply(StoreConnection&, ReplyBuffer&)> make;
};

// What became of a change whose reply does not tell it.
template <protocol::Record Reply>
struct Outcome {
    protocol::StatusReply status;
    Reply reply;
};

// The refusal of a change that the database did not take; the log has it too.
[[nodiscard]] protocol::StatusReply databaseRefused(const char* reason);

} // namespace server
