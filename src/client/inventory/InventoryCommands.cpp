#include "client/inventory/InventoryCommands.h"

#include "client/CursorCalls.h"
#include "protocol/inventory/FoundQueue.h"
#include "protocol/inventory/InventoryModel.h"
#include "protocol/inventory/InventoryPrinter.h"
#include "protocol/inventory/InventoryReport.h"
#include "protocol/inventory/IpRange.h"
#include "protocol/inventory/Schema.h"

namespace client {

bool InventoryCommands::listSchemas(const std::string& reportId) {
    return fillCursor(client_, schemas_,
                      protocol::ListSchemasRequest{.id = reportId, .listKind = protocol::schemaListKind::all},
                      reportId);
}

bool InventoryCommands::nextSchema(protocol::SchemaRecord& schema) {
    return schemas_.next(schema);
}

std::optional<protocol::SchemaRecord> InventoryCommands::getSchema(const std::string& schemaId) {
    std::vector<protocol::SchemaRecord> found;
    const protocol::ListSchemasRequest request{.id = schemaId, .listKind = protocol::schemaListKind::one};
    if (!listRecords(client_, request, found, schemaId) || found.empty()) {
        return std::nullopt;
    }
    return std::move(found.front());
}

bool InventoryCommands::createSchema(const protocol::SchemaRecord& schema) {
    return changeSchema(protocol::SchemaOperation::create, schema, wire::toUtf8(schema.schemaName));
}

bool InventoryCommands::updateSchema(const protocol::SchemaRecord& schema) {
    return changeSchema(protocol::SchemaOperation::save, schema, wire::toUtf8(schema.schemaName));
}

bool InventoryCommands::deleteSchema(const std::string& schemaId) {
    protocol::SchemaRecord schema;
    schema.schemaId = schemaId;
    return changeSchema(protocol::SchemaOperation::remove, schema, schemaId);
}

bool InventoryCommands::changeSchema(protocol::SchemaOperation operation, const protocol::SchemaRecord& schema,
                                     std::string summary) {
    return sendCommand(client_, protocol::ChangeSchemaRequest{.operation = operation, .schema = schema},
                       std::move(summary));
}

bool InventoryCommands::searchQueues(const wire::WideString& pattern) {
    return fillCursor(client_, foundQueues_, protocol::SearchQueuesRequest{.pattern = pattern}, wire::toUtf8(pattern));
}

bool InventoryCommands::nextFoundQueue(protocol::FoundQueueRecord& queue) {
    return foundQueues_.next(queue);
}

bool InventoryCommands::listInventoryReports() {
    return fillCursor(client_, reports_, protocol::ListInventoryReportsRequest{}, {});
}

bool InventoryCommands::nextInventoryReport(protocol::InventoryReportRecord& report) {
    return reports_.next(report);
}

bool InventoryCommands::createInventoryReport(const protocol::CreateInventoryReportRequest& request) {
    return sendCommand(client_, request, wire::toUtf8(request.reportName));
}

bool InventoryCommands::deleteInventoryReport(const std::string& reportId) {
    return sendCommand(client_, protocol::DeleteInventoryReportRequest{.reportId = reportId}, reportId);
}

bool InventoryCommands::listInventoryModels(std::uint16_t listKind, const std::string& id) {
    return fillCursor(client_, models_, protocol::ListInventoryModelsRequest{.listKind = listKind, .id = id}, id);
}

bool InventoryCommands::nextInventoryModel(protocol::InventoryModelRecord& model) {
    return models_.next(model);
}

bool InventoryCommands::listInventoryPrinters(std::uint16_t listKind, const std::string& id) {
    return fillCursor(client_, found_, protocol::ListInventoryPrintersRequest{.listKind = listKind, .id = id}, id,
                      [](auto& record) { record.spare = {}; });
}

bool InventoryCommands::nextInventoryPrinter(protocol::InventoryPrinterRecord& printer) {
    return found_.next(printer);
}

bool InventoryCommands::listIpRanges() {
    return listRanges(protocol::rangeListKind::all, {});
}

bool InventoryCommands::getIpRange(const std::string& rangeId) {
    return listRanges(protocol::rangeListKind::one, rangeId);
}

bool InventoryCommands::listRanges(std::uint8_t listKind, const std::string& id) {
    return fillCursor(client_, ranges_, protocol::ListIpRangesRequest{.listKind = listKind, .id = id}, id);
}

bool InventoryCommands::nextIpRange(protocol::IpRangeRecord& range) {
    return ranges_.next(range);
}

bool InventoryCommands::addIpRange(const protocol::IpRangeRecord& range) {
    return changeIpRange(protocol::RangeOperation::add, range, wire::toUtf8(range.name));
}

bool InventoryCommands::updateIpRange(const protocol::IpRangeRecord& range) {
    return changeIpRange(protocol::RangeOperation::save, range, wire::toUtf8(range.name));
}

bool InventoryCommands::deleteIpRange(const std::string& rangeId) {
    protocol::IpRangeRecord range;
    range.rangeId = rangeId;
    return changeIpRange(protocol::RangeOperation::remove, range, rangeId);
}

bool InventoryCommands::setIpRangeActive(const std::string& rangeId, bool active) {
    protocol::IpRangeRecord range;
    range.rangeId = rangeId;
    range.active = active;
    return changeIpRange(protocol::RangeOperation::setActive, range, rangeId);
}

bool InventoryCommands::changeIpRange(protocol::RangeOperation operation, const protocol::IpRangeRecord& range,
                                      std::string summary) {
    return sendCommand(client_, protocol::ChangeIpRangeRequest{.operation = operation, .range = range},
                       std::move(summary));
}

} // namespace client
