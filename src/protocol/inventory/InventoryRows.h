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
    row<ListSchemasRequest>("lists migration plans: all, of a report, or one")
        .list<SchemaRecord>(ReaderForm::middle)
        .leftOpen(),
    row<ChangeSchemaRequest>("adds, changes or deletes a migration plan").leftOpen(),
    row<SearchQueuesRequest>("finds queues by name pattern").list<FoundQueueRecord>(ReaderForm::middle).leftOpen(),
    row<ListInventoryReportsRequest>("lists the inventory reports")
        .list<InventoryReportRecord>(ReaderForm::middle)
        .leftOpen(),
    row<CreateInventoryReportRequest>("creates an inventory report").leftOpen(),
    row<DeleteInventoryReportRequest>("deletes an inventory report").leftOpen(),
    row<ListInventoryModelsRequest>("lists models and drivers of the inventory, by kind of list")
        .list<InventoryModelRecord>(ReaderForm::middle)
        .leftOpen(),
    row<ListInventoryPrintersRequest>("lists printers and queues of the inventory, by kind of list")
        .list<InventoryPrinterRecord>(ReaderForm::middle)
        .leftOpen(),
    row<ListIpRangesRequest>("lists the IP ranges, all or one").list<IpRangeRecord>(ReaderForm::middle).leftOpen(),
    row<ChangeIpRangeRequest>("adds, changes, deletes or switches an IP range").leftOpen(),
};

} // namespace protocol
