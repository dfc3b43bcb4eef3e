#pragma once

#include "protocol/estate/StatusReply.h"
#include "protocol/rules/ShortId.h"
#include "server/store/StoreConnection.h"

namespace server {

// Checks and carries out changes of short ids. Each change runs inside the caller's transaction; a refused one has
// changed nothing. Throws StoreError.
class ShortIdService {
public:
    explicit ShortIdService(StoreConnection& connection) : connection_(connection) {}

    protocol::StatusReply add(const protocol::AddShortIdRequest& request);
    protocol::StatusReply update(const protocol::UpdateShortIdRequest& request);
    // The entries that refer to it stay as they are.
    protocol::StatusReply remove(const protocol::DeleteShortIdRequest& request);

private:
    protocol::StatusReply write(std::uint8_t action, const protocol::ShortIdRecord& shortId);

    StoreConnection& connection_;
};

} // namespace server
