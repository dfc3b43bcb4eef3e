#include "server/inventory/ReportTable.h"

#include "server/inventory/Address.h"
#include "server/store/NameKey.h"
#include "server/store/RecordColumns.h"

namespace server {

using protocol::InventoryReportRecord;

namespace {

std::optional<std::int64_t> firstNumber(Rows rows) {
    return rows.next() ? std::optional(rows.number(0)) : std::nullopt;
}

} // namespace

ReportTable::ReportTable(sqlite3* connection)
    : insert_(connection, "INSERT INTO inventoryReport (" + columnNames<InventoryReportRecord>() +
                              ", dateFrom, dateTo) VALUES (" + columnPlaces<InventoryReportRecord>() + ", ?, ?)"),
      addPrinter_(connection, "INSERT INTO inventoryEntry (report, entryId, local, windowsName, nameKey, printerIp, "
                              "addressKey, printerPort, location, comment, clientCount, model, modelKey, workstation, "
                              "workstationKey, rangeType) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
      addModel_(connection, "INSERT INTO inventoryModel (report, modelKey, modelName, queueCount, clientCount) "
                            "VALUES (?, ?, ?, ?, ?)"),
      remove_(connection, "DELETE FROM inventoryReport WHERE reportId = ?"),
      find_(connection, "SELECT number FROM inventoryReport WHERE reportId = ?"),
      newest_(connection, "SELECT number FROM inventoryReport ORDER BY number DESC LIMIT 1"),
      all_(connection, "SELECT " + columnNames<InventoryReportRecord>() + " FROM inventoryReport ORDER BY number") {}

std::int64_t ReportTable::insert(const InventoryReportRecord& report, const ReportPeriod& period) {
    int index = bindFields(insert_, report);
    insert_.bind(index++, period.from);
    insert_.bind(index, period.to);
    return insert_.insert();
}

void ReportTable::addPrinter(std::int64_t report, const FoundPrinter& found) {
    addPrinter_.execute(report, found.entryId, found.local, found.windowsName, nameKey(found.windowsName),
                        found.printerIp, addressKey(found.printerIp), found.printerPort, found.location, found.comment,
                        found.clientCount, found.model, nameKey(found.model), found.workstation,
                        nameKey(found.workstation), found.rangeType);
}

void ReportTable::addModel(std::int64_t report, const Bytes& modelKey, const std::u16string& name, std::int64_t queues,
                           std::int64_t clients) {
    addModel_.execute(report, modelKey, name, queues, clients);
}

bool ReportTable::remove(const std::string& reportId) {
    return remove_.affects(reportId);
}

std::optional<std::int64_t> ReportTable::find(const std::string& reportId) {
    return firstNumber(find_.run(reportId));
}

std::optional<std::int64_t> ReportTable::newest() {
    return firstNumber(newest_.run());
}

} // namespace server
