#pragma once

#include "protocol/inventory/InventoryReport.h"
#include "server/inventory/IpScope.h"
#include "server/inventory/ReportPeriod.h"
#include "server/store/StoreConnection.h"

#include <functional>

namespace server {

// Goes over the old estate and stores what it finds as a report. Runs inside of the caller's transaction. Throws
// StoreError.
class InventoryScan {
public:
    using IdMaker = std::function<std::string()>;

    // The ids of what is found come from the maker.
    InventoryScan(StoreConnection& connection, IdMaker newId) : connection_(connection), newId_(std::move(newId)) {}

    // Stores the report with the printers of its kind that stand within the scope and were last seen in the period.
    // What an IP range tells to ignore is left out. The id and the date are the report's own.
    void run(const protocol::InventoryReportRecord& report, const IpScope& scope, const ReportPeriod& period);

private:
    StoreConnection& connection_;
    IdMaker newId_;
};

} // namespace server
