#pragma once

#include "server/Schema.h"
#include "server/commands/Refusal.h"
#include "server/estate/RecordService.h"
#include "server/estate/RecordTable.h"
#include "server/estate/RegionService.h"
#include "server/estate/RegionTable.h"
#include "server/store/Store.h"
#include "tests/server/support/TestFolder.h"

namespace server::test {

// A database for one test, and shorthands for what tests do with it.
class TestEstate {
public:
    [[nodiscard]] StoreConnection& connection() { return *connection_; }
    [[nodiscard]] RegionTable& regions() { return connection_->table<RegionTable>(); }
    [[nodiscard]] RecordTable& records() { return connection_->table<RecordTable>(); }
    [[nodiscard]] RegionService regionService() { return RegionService(*connection_); }
    [[nodiscard]] RecordService recordService() { return RecordService(*connection_); }

    std::int32_t addRegion(const std::u16string& name, std::int32_t parentId = 0, std::uint8_t kind = 0) {
        return connection_->table<RegionTable>().insert(kind, parentId, name);
    }

    // Its id; empty when it was refused.
    std::string add(std::uint16_t recordType, const std::u16string& name, std::int32_t regionId,
                    const std::string& printerId = {}) {
        protocol::PrinterRecord record;
        record.recordType = recordType;
        record.name = name;
        record.regionId = regionId;
        return recordService().create({.physicalPrinterId = printerId, .record = record}).id;
    }
    std::string addPrinter(const std::u16string& name, std::int32_t regionId) { return add(0, name, regionId); }
    std::string addQueue(const std::u16string& name, const std::string& printerId) {
        return add(1, name, 0, printerId);
    }

    [[nodiscard]] protocol::PrinterRecord record(const std::string& id) {
        const auto found = connection_->table<RecordTable>().find(id);
        return found ? found->record : protocol::PrinterRecord{};
    }
    [[nodiscard]] bool exists(const std::string& id) { return connection_->table<RecordTable>().find(id).has_value(); }

    // The names of a list, in its order.
    [[nodiscard]] std::vector<std::u16string> names(std::uint16_t mode, std::int32_t regionId,
                                                    const std::string& id = {}) {
        std::vector<std::u16string> names;
        const protocol::ListPrinterRecordsRequest request{.printerId = id, .regionId = regionId, .mode = mode};
        auto rows = connection_->table<RecordTable>().list(request);
        while (rows.next()) {
            names.push_back(rows.wide(3));
        }
        return names;
    }

    [[nodiscard]] const Store& store() const { return store_; }

private:
    TestFolder folder_;
    Store store_{folder_ / "estate.db", schema()};
    std::unique_ptr<StoreConnection> connection_ = store_.openConnection();
};

} // namespace server::test
