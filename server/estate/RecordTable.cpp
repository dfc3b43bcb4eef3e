#include "server/estate/RecordTable.h"

#include "server/store/NameKey.h"
#include "server/store/RecordColumns.h"

namespace server {

namespace {

using protocol::PrinterRecord;
namespace type = protocol::recordType;
namespace mode = protocol::printerListMode;

std::uint16_t typeInRegion(std::uint16_t listMode) {
    switch (listMode) {
    case mode::printersInRegion:
        return type::printer;
    case mode::queues:
        return type::queue;
    case mode::followQueuesInRegion:
        return type::followQueue;
    default:
        return type::localPrinter;
    }
}

bool listsARegion(const protocol::ListPrinterRecordsRequest& request) {
    return request.mode == mode::printersInRegion || (request.mode == mode::queues && request.printerId.empty()) ||
           request.mode == mode::followQueuesInRegion ||
           (request.mode == mode::localPrintersInRegion && request.printerId.empty());
}

} // namespace

std::uint8_t regionKindOf(std::uint16_t recordType) {
    return recordType == type::localPrinter ? 1 : 0;
}

RecordTable::Selection::Selection(sqlite3* connection, const std::string& where)
    : count(connection, "SELECT count(*) FROM record WHERE " + where),
      rows(connection,
           "SELECT " + columnNames<PrinterRecord>() + " FROM record WHERE " + where + " ORDER BY nameKey, number") {}

RecordTable::RecordTable(sqlite3* connection)
    : find_(connection, "SELECT " + columnNames<PrinterRecord>() + ", printerId FROM record WHERE id = ?"),
      nameTaken_(connection, "SELECT 1 FROM record WHERE regionId = ? AND recordType = ? AND nameKey = ? AND id <> ?"),
      queueNameTaken_(connection,
                      "SELECT mine.name FROM record AS mine JOIN record AS other ON other.regionId = ?1 AND "
                      "other.recordType = 1 AND other.nameKey = mine.nameKey "
                      "WHERE mine.printerId = ?2 AND other.printerId <> ?2 LIMIT 1"),
      insert_(connection, "INSERT INTO record (" + columnNames<PrinterRecord>() +
                              ", regionKind, nameKey, printerId) VALUES (" + columnPlaces<PrinterRecord>() +
                              ", ?, ?, ?)"),
      update_(connection, "UPDATE record SET " + columnAssignments<PrinterRecord>() + ", nameKey = ? WHERE id = ?"),
      move_(connection, "UPDATE record SET regionId = ?1 WHERE id = ?2 OR printerId = ?2"),
      removeQueues_(connection, "DELETE FROM record WHERE printerId = ?"),
      remove_(connection, "DELETE FROM record WHERE id = ?"),
      octetOrder_(connection, "SELECT octetOrder FROM record WHERE id = ?"),
      setOctetOrder_(connection, "UPDATE record SET octetOrder = ? WHERE id = ?"),
      any_(connection, "SELECT 1 FROM record LIMIT 1"),
      inRegion_(connection, "regionId = ? AND recordType = ?"),
      ofPrinter_(connection, "printerId = ?"),
      byId_(connection, "id = ?"),
      byTypeAndId_(connection, "id = ? AND recordType IN (?, ?)") {}

std::optional<StoredRecord> RecordTable::find(const std::string& id) {
    auto rows = find_.run(id);
    if (!rows.next()) {
        return std::nullopt;
    }
    return StoredRecord{.record = readFields<PrinterRecord>(rows),
                        .printerId = std::string(rows.text(columnCount<PrinterRecord>))};
}

bool RecordTable::nameTaken(std::int32_t regionId, std::uint16_t recordType, const wire::WideString& name,
                            const std::string& except) {
    return nameTaken_.run(regionId, recordType, nameKey(name), except).next();
}

std::optional<wire::WideString> RecordTable::queueNameTakenIn(std::int32_t regionId, const std::string& printerId) {
    auto rows = queueNameTaken_.run(regionId, printerId);
    return rows.next() ? std::optional(rows.wide(0)) : std::nullopt;
}

void RecordTable::insert(const StoredRecord& stored) {
    const auto& record = stored.record;
    int next = bindFields(insert_, record);
    insert_.bind(next++, regionKindOf(record.recordType));
    insert_.bind(next++, nameKey(record.name));
    if (stored.printerId.empty()) {
        insert_.bind(next, nullptr);
    } else {
        insert_.bind(next, stored.printerId);
    }
    insert_.execute();
}

void RecordTable::update(const PrinterRecord& record) {
    int next = bindFields(update_, record);
    update_.bind(next++, nameKey(record.name));
    update_.bind(next, record.id);
    update_.execute();
}

void RecordTable::moveWithQueues(const std::string& printerId, std::int32_t regionId) {
    move_.execute(regionId, printerId);
}

void RecordTable::removeWithQueues(const std::string& id) {
    removeQueues_.execute(id);
    remove_.execute(id);
}

std::optional<std::uint32_t> RecordTable::octetOrder(const std::string& id) {
    auto rows = octetOrder_.run(id);
    return rows.next() ? std::optional(static_cast<std::uint32_t>(rows.number(0))) : std::nullopt;
}

bool RecordTable::setOctetOrder(const std::string& id, std::uint32_t order) {
    return setOctetOrder_.affects(order, id);
}

bool RecordTable::isEmpty() {
    return !any_.run().next();
}

std::int64_t RecordTable::count(const protocol::ListPrinterRecordsRequest& request) {
    auto rows = select(request, &Selection::count);
    return rows.next() ? rows.number(0) : 0;
}

Rows RecordTable::list(const protocol::ListPrinterRecordsRequest& request) {
    return select(request, &Selection::rows);
}

Rows RecordTable::select(const protocol::ListPrinterRecordsRequest& request, Query Selection::*query) {
    if (listsARegion(request)) {
        return (inRegion_.*query).run(request.regionId, typeInRegion(request.mode));
    }
    switch (request.mode) {
    case mode::queues:
        return (ofPrinter_.*query).run(request.printerId);
    case mode::queueById:
        return (byTypeAndId_.*query).run(request.printerId, type::queue, type::followQueue);
    case mode::printerById:
        return (byTypeAndId_.*query).run(request.printerId, type::printer, type::localPrinter);
    case mode::localPrintersInRegion: // with an id it asks for that record
        return (byTypeAndId_.*query).run(request.printerId, type::localPrinter, type::localPrinter);
    case mode::otherRowById:
    case mode::printerToCopyById:
    case mode::queueToCopyById:
        return (byId_.*query).run(request.printerId);
    default:
        return Rows(nullptr);
    }
}

} // namespace server
