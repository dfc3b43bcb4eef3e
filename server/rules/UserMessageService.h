#pragma once

#include "protocol/estate/StatusReply.h"
#include "protocol/rules/UserMessage.h"
#include "server/store/StoreConnection.h"

namespace server {

// Checks and carries out changes of user messages. Each change runs inside the caller's transaction; a refused one has
// changed nothing. Throws StoreError.
class UserMessageService {
public:
    explicit UserMessageService(StoreConnection& connection) : connection_(connection) {}

    // A console can't decide whether a message is built in.
    protocol::StatusReply write(const protocol::WriteUserMessageRequest& request);
    // A built-in message can't be removed. The page limits and short ids that refer to a message stay as they are.
    protocol::StatusReply remove(const protocol::DeleteUserMessageRequest& request);

private:
    StoreConnection& connection_;
};

} // namespace server
