#pragma once

#include "protocol/inventory/InventoryReport.h"
#include "server/inventory/IpScope.h"
#include "server/inventory/ReportPeriod.h"
#include "server/store/StoreConnection.h"

#include <functional>

namespace server {

// Scans the old estate and stores what it finds as a report. Runs inside the caller's transaction. Throws StoreError.
class InventoryScan {
public:
    using IdMaker = std::function<std::string()>;

    // The maker supplies the ids of what is found.
    InventoryScan(StoreConnection& connection, IdMaker newId) : connection_(connection), newId_(std::move(newId)) {}

    // Stores the report with the printers of its kind that are within the scope and were last seen in the period.
    // Printers in an IP range that is to be ignored are left out. Id and date are taken from the report.
    void run(const protocol::InventoryReportRecord& report, const IpScope& scope, const ReportPeriod& period);

private:
    StoreConnection& connection_;
    IdMaker newId_;
};

} // namespace server
