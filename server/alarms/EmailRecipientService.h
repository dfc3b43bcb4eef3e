#pragma once

#include "protocol/alarms/EmailRecipient.h"
#include "protocol/estate/StatusReply.h"
#include "server/store/StoreConnection.h"

namespace server {

// Checks and carries out changes of e-mail recipients. Each change runs inside the caller's transaction; a refused one
// has changed nothing. Throws StoreError.
class EmailRecipientService {
public:
    explicit EmailRecipientService(StoreConnection& connection) : connection_(connection) {}

    // Without an id it adds a recipient. With an id and neither name nor address it deletes the recipient and the
    // actions that mail to it; otherwise it changes the recipient.
    protocol::StatusReply write(const protocol::WriteEmailRecipientRequest& request);
    protocol::StatusReply setActive(const protocol::SetRecipientActiveRequest& request);

private:
    StoreConnection& connection_;
};

} // namespace server
