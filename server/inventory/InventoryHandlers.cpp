#include "server/inventory/InventoryHandlers.h"

#include "protocol/inventory/FoundQueue.h"
#include "protocol/inventory/InventoryModel.h"
#include "protocol/inventory/InventoryPrinter.h"
#include "protocol/inventory/InventoryReport.h"
#include "protocol/inventory/IpRange.h"
#include "protocol/inventory/Schema.h"
#include "server/inventory/FoundModelList.h"
#include "server/inventory/FoundPrinterList.h"
#include "server/inventory/IpRangeService.h"
#include "server/inventory/IpRangeTable.h"
#include "server/inventory/MigrationPlanService.h"
#include "server/inventory/MigrationPlanTable.h"
#include "server/inventory/QueueSearch.h"
#include "server/inventory/ReportService.h"
#include "server/inventory/ReportTable.h"

namespace server {

namespace {

// A table whose queries match names.
template <class Table>
Table& matchingTable(StoreConnection& connection) {
    static_cast<void>(connection.table<NameMatching>());
    return connection.table<Table>();
}

Listing listSchemas(StoreConnection& connection, const protocol::ListSchemasRequest& request) {
    auto& plans = connection.table<MigrationPlanTable>();
    if (request.listKind == protocol::schemaListKind::one) {
        return plans.find(request.id);
    }
    if (request.listKind != protocol::schemaListKind::all) {
        return {};
    }
    if (request.id.empty()) {
        return plans.list();
    }
    const auto report = connection.table<ReportTable>().find(request.id);
    return report ? plans.listOfReport(*report) : Listing();
}

Listing searchQueues(StoreConnection& connection, const protocol::SearchQueuesRequest& request) {
    return matchingTable<QueueSearch>(connection).find(NamePattern(request.pattern));
}

Listing listReports(StoreConnection& connection, const protocol::ListInventoryReportsRequest&) {
    return connection.table<ReportTable>().list();
}

Listing listModels(StoreConnection& connection, const protocol::ListInventoryModelsRequest& request) {
    const auto report = connection.table<ReportTable>().find(request.id);
    return report ? connection.table<FoundModelList>().list(request.listKind, *report) : Listing();
}

// An id that is not that of a report filters the newest report.
Listing listPrinters(StoreConnection& connection, const protocol::ListInventoryPrintersRequest& request) {
    auto& reports = connection.table<ReportTable>();
    auto& printers = matchingTable<FoundPrinterList>(connection);
    if (const auto report = reports.find(request.id)) {
        return printers.list(request.listKind, *report);
    }
    const auto newest = reports.newest();
    return newest ? printers.filter(request.listKind, *newest, NamePattern(wire::toWide(request.id))) : Listing();
}

Listing listRanges(StoreConnection& connection, const protocol::ListIpRangesRequest& request) {
    auto& ranges = connection.table<IpRangeTable>();
    if (request.listKind == protocol::rangeListKind::all) {
        return ranges.list();
    }
    return request.listKind == protocol::rangeListKind::one ? ranges.find(request.id) : Listing();
}

constexpr Handler handlers[] = {
    lists<protocol::ListSchemasRequest, protocol::SchemaRecord, listSchemas>,
    changes<MigrationPlanService, &MigrationPlanService::change, protocol::ChangeSchemaRequest>,
    lists<protocol::SearchQueuesRequest, protocol::FoundQueueRecord, searchQueues>,
    lists<protocol::ListInventoryReportsRequest, protocol::InventoryReportRecord, listReports>,
    changes<ReportService, &ReportService::create, protocol::CreateInventoryReportRequest>,
    changes<ReportService, &ReportService::remove, protocol::DeleteInventoryReportRequest>,
    lists<protocol::ListInventoryModelsRequest, protocol::InventoryModelRecord, listModels>,
    lists<protocol::ListInventoryPrintersRequest, protocol::InventoryPrinterRecord, listPrinters>,
    lists<protocol::ListIpRangesRequest, protocol::IpRangeRecord, listRanges>,
    changes<IpRangeService, &IpRangeService::change, protocol::ChangeIpRangeRequest>,
};

} // namespace

std::span<const Handler> inventoryHandlers() {
    return handlers;
}

} // namespace server
