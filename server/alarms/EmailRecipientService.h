#pragma once

#include "protocol/alarms/EmailRecipient.h"
#include "protocol/estate/StatusReply.h"
#include "server/store/StoreConnection.h"

namespace server {

// What may be done to e-mail recipients, and doing it. Each change runs inside of the caller's transaction; a refused
// one has changed nothing. Throws StoreError.
class EmailRecipientService {
public:
    explicit EmailRecipientService(StoreConnection& connection) : connection_(connection) {}

    // Without an id it adds. With an id and neither name nor address it deletes, and what goes to the recipient with
    // it; else it changes.
    protocol::StatusReply write(const protocol::WriteEmailRecipientRequest& request);
    protocol::StatusReply setActive(const protocol::SetRecipientActiveRequest& request);

private:
    StoreConnection& connection_;
};

} // namespace server
