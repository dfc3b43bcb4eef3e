#pragma once

#include "protocol/estate/Printer.h"
#include "server/store/Query.h"

#include <optional>

namespace server {

// A record as it is stored: the record of the wire, and the printer of a queue.
struct StoredRecord {
    protocol::PrinterRecord record;
    std::string printerId; // empty unless it is a queue
};

// The region tree that a type of record belongs to.
[[nodiscard]] std::uint8_t regionKindOf(std::uint16_t recordType);

// The printers, queues, follow-print queues and local printers, accessed over one connection to the database without
// any checks. Throws StoreError.
class RecordTable {
public:
    explicit RecordTable(sqlite3* connection);

    [[nodiscard]] std::optional<StoredRecord> find(const std::string& id);

    // Whether another record of the type in the region has the name.
    [[nodiscard]] bool nameTaken(std::int32_t regionId, std::uint16_t recordType, const wire::WideString& name,
                                 const std::string& except);

    // The name of a queue of the printer that a queue of another printer in the region already has.
    [[nodiscard]] std::optional<wire::WideString> queueNameTakenIn(std::int32_t regionId, const std::string& printerId);

    void insert(const StoredRecord& stored);
    // Updates all fields, by the record's id; its type and its printer stay.
    void update(const protocol::PrinterRecord& record);
    void moveWithQueues(const std::string& printerId, std::int32_t regionId);
    void removeWithQueues(const std::string& id);

    [[nodiscard]] std::optional<std::uint32_t> octetOrder(const std::string& id);
    // False when there is no such record.
    bool setOctetOrder(const std::string& id, std::uint32_t order);

    [[nodiscard]] bool isEmpty();

    // What a list request selects, by name and then in the order of creation. The columns of the rows are the fields of
    // PrinterRecord. An unknown mode selects nothing. Within one read transaction the two functions agree.
    [[nodiscard]] std::int64_t count(const protocol::ListPrinterRecordsRequest& request);
    [[nodiscard]] Rows list(const protocol::ListPrinterRecordsRequest& request);

private:
    struct Selection {
        Query count;
        Query rows;
        Selection(sqlite3* connection, const std::string& where);
    };

    Rows select(const protocol::ListPrinterRecordsRequest& request, Query Selection::*query);

    Query find_;
    Query nameTaken_;
    Query queueNameTaken_;
    Query insert_;
    Query update_;
    Query move_;
    Query removeQueues_;
    Query remove_;
    Query octetOrder_;
    Query setOctetOrder_;
    Query any_;
    Selection inRegion_;
    Selection ofPrinter_;
    Selection byId_;
    Selection byTypeAndId_;
};

} // namespace server
