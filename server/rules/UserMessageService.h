#pragma once

#include "protocol/estate/StatusReply.h"
#include "protocol/rules/UserMessage.h"
#include "server/store/StoreConnection.h"

namespace server {

// What may be done to user messages, and doing it. Each change runs inside of the caller's transaction;
// a refused one has changed nothing. Throws StoreError.
class UserMessageService {
public:
    explicit UserMessageService(StoreConnection& connection) : connection_(connection) {}

    // Whether a message is built in is not for a console to say.
    protocol::StatusReply write(const protocol::WriteUserMessageRequest& request);
    // A built-in message stays. The page limits and short ids that point at a message stay as they are.
    protocol::StatusReply remove(const protocol::DeleteUserMessageRequest& request);

private:
    StoreConnection& connection_;
};

} // namespace server
