#pragma once

#include "server/RecordRules.h"
#include "server/Refusal.h"
#include "server/RegionRules.h"
#include "server/Store.h"
#include "tests/server/TestFolder.h"

namespace server::test {

// A database of its own for a test, and short words for what tests do with it.
class TestEstate {
public:
    [[nodiscard]] Estate& estate() { return *estate_; }
    [[nodiscard]] RegionRules regionRules() { return RegionRules(*estate_); }
    [[nodiscard]] RecordRules recordRules() { return RecordRules(*estate_); }

    std::int32_t addRegion(const std::u16string& name, std::int32_t parentId = 0, std::uint8_t kind = 0) {
        return estate_->regions().insert(kind, parentId, name);
    }

    // Its id; empty when it was refused.
    std::string add(std::uint16_t recordType, const std::u16string& name, std::int32_t regionId,
                    const std::string& printerId = {}) {
        protocol::PrinterRecord record;
        record.recordType = recordType;
        record.name = name;
        record.regionId = regionId;
        return recordRules().create({.physicalPrinterId = printerId, .record = record}).id;
    }
    std::string addPrinter(const std::u16string& name, std::int32_t regionId) { return add(0, name, regionId); }
    std::string addQueue(const std::u16string& name, const std::string& printerId) {
        return add(1, name, 0, printerId);
    }

    [[nodiscard]] protocol::PrinterRecord record(const std::string& id) {
        const auto found = estate_->records().find(id);
        return found ? found->record : protocol::PrinterRecord{};
    }
    [[nodiscard]] bool exists(const std::string& id) { return estate_->records().find(id).has_value(); }

    // The names of a list, in its order.
    [[nodiscard]] std::vector<std::u16string> names(std::uint16_t mode, std::int32_t regionId,
                                                    const std::string& id = {}) {
        std::vector<std::u16string> names;
        const protocol::ListPrinterRecordsRequest request{.printerId = id, .regionId = regionId, .mode = mode};
        auto rows = estate_->records().list(request);
        while (rows.next())
            names.push_back(rows.wide(3));
        return names;
    }

    [[nodiscard]] const Store& store() const { return store_; }

private:
    TestFolder folder_;
    Store store_{folder_ / "estate.db"};
    std::unique_ptr<Estate> estate_ = store_.openEstate();
};

} // namespace server::test
