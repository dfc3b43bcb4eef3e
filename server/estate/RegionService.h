#pragma once

#include "protocol/estate/Region.h"
#include "protocol/estate/StatusReply.h"
#include "server/store/StoreConnection.h"

namespace server {

// Checks and carries out changes of regions. Each change runs inside the caller's transaction; a refused one has
// changed nothing. Throws StoreError.
class RegionService {
public:
    explicit RegionService(StoreConnection& connection) : connection_(connection) {}

    protocol::StatusReply create(const protocol::CreateRegionRequest& request);
    protocol::StatusReply rename(const protocol::RenameRegionRequest& request);
    protocol::StatusReply move(const protocol::MoveRegionRequest& request);
    protocol::StatusReply remove(const protocol::DeleteRegionRequest& request);

private:
    StoreConnection& connection_;
};

} // namespace server
