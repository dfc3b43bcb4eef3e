#pragma once

#include "protocol/estate/StatusReply.h"
#include "protocol/inventory/InventoryReport.h"
#include "server/store/StoreConnection.h"

namespace server {

// Which inventory reports may be made, making them, and deleting them. Runs inside of the caller's transaction; a
// refused change has changed nothing. Throws StoreError.
class ReportService {
public:
    explicit ReportService(StoreConnection& connection) : connection_(connection) {}

    // The report stands with all that it found when this returns.
    protocol::StatusReply create(const protocol::CreateInventoryReportRequest& request);
    protocol::StatusReply remove(const protocol::DeleteInventoryReportRequest& request);

private:
    StoreConnection& connection_;
};

} // namespace server
