#pragma once

#include "protocol/CatalogueRow.h"
#include "protocol/inventory/ChangeIpRangeRequest.h"
#include "protocol/inventory/ChangeSchemaRequest.h"
#include "protocol/inventory/CreateInventoryReportRequest.h"
#include "protocol/inventory/DeleteInventoryReportRequest.h"
#include "protocol/inventory/FoundQueueRecord.h"
#include "protocol/inventory/InventoryModelRecord.h"
#include "protocol/inventory/InventoryPrinterRecord.h"
#include "protocol/inventory/InventoryReportRecord.h"
#include "protocol/inventory/IpRangeRecord.h"
#include "protocol/inventory/ListInventoryModelsRequest.h"
#include "protocol/inventory/ListInventoryPrintersRequest.h"
#include "protocol/inventory/ListInventoryReportsRequest.h"
#include "protocol/inventory/ListIpRangesRequest.h"
#include "protocol/inventory/ListSchemasRequest.h"
#include "protocol/inventory/SchemaRecord.h"
#include "protocol/inventory/SearchQueuesRequest.h"

namespace protocol {

// The commands for inventory reports, migration plans and IP ranges.
inline constexpr Command inventoryRows[] = {
    row(37, "ListSchemas", "lists migration plans: all, of a report, or one")
        .asks<ListSchemasRequest>()
        .list<SchemaRecord>(ReaderForm::middle)
        .leftOpen(),
    row(38, "ChangeSchema", "adds, changes or deletes a migration plan").asks<ChangeSchemaRequest>().leftOpen(),
    row(39, "SearchQueues", "finds queues by name pattern")
        .asks<SearchQueuesRequest>()
        .list<FoundQueueRecord>(ReaderForm::middle)
        .leftOpen(),
    row(40, "ListInventoryReports", "lists the inventory reports")
        .asks<ListInventoryReportsRequest>()
        .list<InventoryReportRecord>(ReaderForm::middle)
        .leftOpen(),
    row(41, "CreateInventoryReport", "creates an inventory report").asks<CreateInventoryReportRequest>().leftOpen(),
    row(42, "DeleteInventoryReport", "deletes an inventory report").asks<DeleteInventoryReportRequest>().leftOpen(),
    row(43, "ListInventoryModels", "lists models and drivers of the inventory, by kind of list")
        .asks<ListInventoryModelsRequest>()
        .list<InventoryModelRecord>(ReaderForm::middle)
        .leftOpen(),
    row(44, "ListInventoryPrinters", "lists printers and queues of the inventory, by kind of list")
        .asks<ListInventoryPrintersRequest>()
        .list<InventoryPrinterRecord>(ReaderForm::middle)
        .leftOpen(),
    row(55, "ListIpRanges", "lists the IP ranges, all or one")
        .asks<ListIpRangesRequest>()
        .list<IpRangeRecord>(ReaderForm::middle)
        .leftOpen(),
    row(56, "ChangeIpRange", "adds, changes, deletes or switches an IP range").asks<ChangeIpRangeRequest>().leftOpen(),
};

} // namespace protocol
