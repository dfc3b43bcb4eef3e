#pragma once

#include "protocol/CatalogueRow.h"
#include "protocol/inventory/FoundQueue.h"
#include "protocol/inventory/InventoryModel.h"
#include "protocol/inventory/InventoryPrinter.h"
#include "protocol/inventory/InventoryReport.h"
#include "protocol/inventory/IpRange.h"
#include "protocol/inventory/Schema.h"

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
