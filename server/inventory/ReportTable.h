#pragma once

#include "protocol/inventory/InventoryReport.h"
#include "server/inventory/ReportPeriod.h"
#include "server/store/ListQuery.h"

#include <optional>

namespace server {

// A printer that a report has found, as it is stored with the report.
struct FoundPrinter {
    std::string entryId;
    bool local = false;
    std::u16string windowsName;
    std::string printerIp;
    std::string printerPort;
    std::u16string location;
    std::u16string comment;
    std::int64_t clientCount = 0;
    std::u16string model;
    std::u16string workstation;
    std::optional<std::int32_t> rangeType; // the type of the IP range that decides about its address
};

// The inventory reports of one connection to the database. Throws StoreError.
class ReportTable {
public:
    explicit ReportTable(sqlite3* connection);

    // Returns its number.
    std::int64_t insert(const protocol::InventoryReportRecord& report, const ReportPeriod& period);
    void addPrinter(std::int64_t report, const FoundPrinter& found);
    void addModel(std::int64_t report, const Bytes& modelKey, const std::u16string& name, std::int64_t queues,
                  std::int64_t clients);
    // Also removes its findings; false when there is no report with that id.
    bool remove(const std::string& reportId);

    // The number of the report with that id, and of the latest one.
    [[nodiscard]] std::optional<std::int64_t> find(const std::string& reportId);
    [[nodiscard]] std::optional<std::int64_t> newest();

    // In the order of creation.
    [[nodiscard]] Listing list() { return all_.run(); }

private:
    Query insert_;
    Query addPrinter_;
    Query addModel_;
    Query remove_;
    Query find_;
    Query newest_;
    ListQuery all_;
};

} // namespace server
