#pragma once

#include "client/CQVXAdminClass2.h"
#include "client/RecordCursor.h"
#include "protocol/inventory/FoundQueue.h"
#include "protocol/inventory/InventoryModel.h"
#include "protocol/inventory/InventoryPrinter.h"
#include "protocol/inventory/InventoryReport.h"
#include "protocol/inventory/IpRange.h"
#include "protocol/inventory/Schema.h"

#include <optional>
#include <string>
#include <vector>

namespace client {

// The part of CQVXAdminClass for inventory reports, migration plans and IP ranges. Each list replaces the previous one;
// its records are returned one by one from the last to the first, or as a whole in the order of the wire.
class InventoryCommands {
public:
    explicit InventoryCommands(CQVXAdminClass2& client) : client_(client) {}

    // All migration plans, or those of a report.
    bool listSchemas(const std::string& reportId = {});
    bool nextSchema(protocol::SchemaRecord& schema);
    [[nodiscard]] const std::vector<protocol::SchemaRecord>& schemas() const { return schemas_.records(); }

    // One plan, for editing; none when there is no connection or no such plan. Leaves the list of listSchemas
    // unchanged.
    [[nodiscard]] std::optional<protocol::SchemaRecord> getSchema(const std::string& schemaId);

    // The server makes the new plan's id.
    bool createSchema(const protocol::SchemaRecord& schema);
    bool updateSchema(const protocol::SchemaRecord& schema);
    bool deleteSchema(const std::string& schemaId);

    // The queues whose names contain the pattern; an empty one finds all.
    bool searchQueues(const wire::WideString& pattern);
    bool nextFoundQueue(protocol::FoundQueueRecord& queue);
    [[nodiscard]] const std::vector<protocol::FoundQueueRecord>& foundQueues() const { return foundQueues_.records(); }

    bool listInventoryReports();
    bool nextInventoryReport(protocol::InventoryReportRecord& report);
    [[nodiscard]] const std::vector<protocol::InventoryReportRecord>& inventoryReports() const {
        return reports_.records();
    }

    bool createInventoryReport(const protocol::CreateInventoryReportRequest& request);
    bool deleteInventoryReport(const std::string& reportId);

    // The kind is one of protocol::modelListKind.
    bool listInventoryModels(std::uint16_t listKind, const std::string& id);
    bool nextInventoryModel(protocol::InventoryModelRecord& model);
    [[nodiscard]] const std::vector<protocol::InventoryModelRecord>& inventoryModels() const {
        return models_.records();
    }

    // The kind is one of protocol::foundListKind. Drops the spare text of each printer.
    bool listInventoryPrinters(std::uint16_t listKind, const std::string& id);
    bool nextInventoryPrinter(protocol::InventoryPrinterRecord& printer);
    [[nodiscard]] const std::vector<protocol::InventoryPrinterRecord>& inventoryPrinters() const {
        return found_.records();
    }

    bool listIpRanges();
    // A list of only this range.
    bool getIpRange(const std::string& rangeId);
    bool nextIpRange(protocol::IpRangeRecord& range);
    [[nodiscard]] const std::vector<protocol::IpRangeRecord>& ipRanges() const { return ranges_.records(); }

    bool addIpRange(const protocol::IpRangeRecord& range);
    bool updateIpRange(const protocol::IpRangeRecord& range);
    bool deleteIpRange(const std::string& rangeId);
    bool setIpRangeActive(const std::string& rangeId, bool active);

private:
    bool changeSchema(protocol::SchemaOperation operation, const protocol::SchemaRecord& schema, std::string summary);
    bool listRanges(std::uint8_t listKind, const std::string& id);
    bool changeIpRange(protocol::RangeOperation operation, const protocol::IpRangeRecord& range, std::string summary);

    CQVXAdminClass2& client_;
    RecordCursor<protocol::SchemaRecord> schemas_;
    RecordCursor<protocol::FoundQueueRecord> foundQueues_;
    RecordCursor<protocol::InventoryReportRecord> reports_;
    RecordCursor<protocol::InventoryModelRecord> models_;
    RecordCursor<protocol::InventoryPrinterRecord> found_;
    RecordCursor<protocol::IpRangeRecord> ranges_;
};

} // namespace client
