#pragma once

#include "protocol/estate/StatusReply.h"
#include "protocol/inventory/InventoryReport.h"
#include "server/store/StoreConnection.h"

namespace server {

// Checks, creates and deletes inventory reports. Runs inside the caller's transaction; a refused change has changed
// nothing. Throws StoreError.
class ReportService {
public:
    explicit ReportService(StoreConnection& connection) : connection_(connection) {}

    // The report is complete with all its findings when this returns.
    protocol::StatusReply create(const protocol::CreateInventoryReportRequest& request);
    protocol::StatusReply remove(const protocol::DeleteInventoryReportRequest& request);

private:
    StoreConnection& connection_;
};

} // namespace server
