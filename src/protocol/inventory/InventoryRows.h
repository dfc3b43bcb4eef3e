#pragma once

#include "protocol/CatalogueRow.h"

namespace protocol {

// The commands for inventory reports, migration plans and IP ranges.
inline constexpr Command inventoryRows[] = {
    row(37, "ListSchemas", "lists migration plans").list(ReaderForm::middle).leftOpen(),
    row(38, "ChangeSchema", "adds, changes or deletes a migration plan").leftOpen(),
    row(39, "SearchQueues", "finds queues by name pattern").list(ReaderForm::middle).leftOpen(),
    row(40, "ListInventoryReports", "lists the inventory reports").list(ReaderForm::plain).leftOpen(),
    row(41, "CreateInventoryReport", "creates an inventory report").leftOpen(),
    row(42, "DeleteInventoryReport", "deletes an inventory report").leftOpen(),
    row(43, "ListInventoryModels", "lists models and drivers of the inventory, by kind of list").list(ReaderForm::plain).leftOpen(),
    row(44, "ListInventoryPrinters", "lists printers and queues of the inventory, by kind of list")
        .list(ReaderForm::plain)
        .leftOpen(),
    row(55, "ListIpRanges", "lists the IP ranges").list(ReaderForm::middle).leftOpen(),
    row(56, "ChangeIpRange", "adds, changes or deletes an IP range").leftOpen(),
};

} // namespace protocol
