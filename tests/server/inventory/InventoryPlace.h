#pragma once

#include "protocol/inventory/InventoryReport.h"
#include "server/inventory/FoundModelList.h"
#include "server/inventory/FoundPrinterList.h"
#include "server/inventory/IpRangeService.h"
#include "server/inventory/IpRangeTable.h"
#include "server/inventory/MigrationPlanService.h"
#include "server/inventory/MigrationPlanTable.h"
#include "server/inventory/OldEstateTable.h"
#include "server/inventory/QueueSearch.h"
#include "server/inventory/ReportService.h"
#include "server/inventory/ReportTable.h"
#include "server/store/RecordColumns.h"
#include "tests/server/support/TestEstate.h"

#include "protocol/inventory/FoundQueue.h"
#include "protocol/inventory/InventoryModel.h"
#include "protocol/inventory/InventoryPrinter.h"

namespace server::test {

// All records of a list; checks its count.
template <protocol::Record R>
std::vector<R> recordsOf(Listing listing) {
    std::vector<R> records;
    while (listing.rows.next()) {
        records.push_back(readFields<R>(listing.rows));
    }
    if (static_cast<std::int64_t>(records.size()) != listing.count) {
        throw std::runtime_error("a list of " + std::to_string(records.size()) + " records announced " +
                                 std::to_string(listing.count));
    }
    return records;
}

// One field of each record.
template <class R, class Value>
std::vector<Value> each(const std::vector<R>& records, Value R::*member) {
    std::vector<Value> values;
    for (const auto& record : records) {
        values.push_back(record.*member);
    }
    return values;
}

// A database with an old estate, and shorthands for what tests do with it.
class InventoryPlace : public TestEstate {
public:
    [[nodiscard]] OldEstateTable& old() { return connection().table<OldEstateTable>(); }

    // A shared printer of the one print server.
    std::int64_t addShared(const std::u16string& name, const std::string& ip, const std::u16string& model = u"X5",
                           const std::string& lastSeen = "2025-06-01 12:00:00") {
        if (server_ == 0) {
            server_ = old().addServer(u"PRN-1", "10.9.0.1", "2025-06-01 12:00:00");
        }
        OldPrinter printer;
        printer.server = server_;
        printer.windowsName = name;
        printer.ip = ip;
        printer.port = "IP_" + ip;
        printer.model = model;
        printer.shared = true;
        printer.lastSeen = lastSeen;
        return old().addPrinter(printer);
    }

    // A printer connected to its own workstation.
    std::int64_t addLocal(const std::u16string& name, const std::u16string& workstation, const std::string& hostIp,
                          const std::u16string& model = u"Ink", bool shared = false) {
        OldPrinter printer;
        printer.workstation = old().addWorkstation(workstation, hostIp, "2025-06-01 12:00:00");
        printer.windowsName = name;
        printer.port = "USB001";
        printer.model = model;
        printer.local = true;
        printer.shared = shared;
        printer.lastSeen = "2025-06-01 12:00:00";
        const auto number = old().addPrinter(printer);
        old().addUse(number, printer.workstation);
        return number;
    }

    // A printer of the system.
    std::string addOwn(const std::u16string& name, const std::string& ip, const std::u16string& model = u"X5") {
        if (region_ == 0) {
            region_ = addRegion(u"North");
        }
        protocol::PrinterRecord record;
        record.name = name;
        record.ip = ip;
        record.modelName = model;
        record.regionId = region_;
        return recordService().create({.physicalPrinterId = {}, .record = record}).id;
    }

    protocol::StatusReply makeReport(const protocol::CreateInventoryReportRequest& request) {
        return connection().change([&] { return ReportService(connection()).create(request); });
    }

    // Its id; empty when it was refused.
    std::string report(std::uint16_t reportType = 0, const std::string& scope = {}, const std::u16string& dateFrom = {},
                       const std::u16string& dateTo = {}) {
        if (!isDone(makeReport({.reportUser = u"eva",
                                .reportName = u"R",
                                .comment = {},
                                .dateFrom = dateFrom,
                                .dateTo = dateTo,
                                .ipScope = scope,
                                .reportType = reportType}))) {
            return {};
        }
        return reports().back().reportId;
    }

    [[nodiscard]] std::vector<protocol::InventoryReportRecord> reports() {
        return recordsOf<protocol::InventoryReportRecord>(connection().table<ReportTable>().list());
    }
    [[nodiscard]] std::vector<protocol::InventoryPrinterRecord> found(const std::string& reportId,
                                                                      std::uint16_t listKind = 0) {
        static_cast<void>(connection().table<NameMatching>());
        return recordsOf<protocol::InventoryPrinterRecord>(
            connection().table<FoundPrinterList>().list(listKind, numberOf(reportId)));
    }
    [[nodiscard]] std::vector<std::u16string> foundNames(const std::string& reportId, std::uint16_t listKind = 0) {
        return each(found(reportId, listKind), &protocol::InventoryPrinterRecord::windowsName);
    }
    [[nodiscard]] std::vector<protocol::InventoryModelRecord> models(const std::string& reportId,
                                                                     std::uint16_t listKind = 0) {
        return recordsOf<protocol::InventoryModelRecord>(
            connection().table<FoundModelList>().list(listKind, numberOf(reportId)));
    }
    [[nodiscard]] std::vector<std::u16string> planNames(const std::string& reportId) {
        return each(recordsOf<protocol::SchemaRecord>(
                        connection().table<MigrationPlanTable>().listOfReport(numberOf(reportId))),
                    &protocol::SchemaRecord::schemaName);
    }
    [[nodiscard]] std::vector<protocol::SchemaRecord> plans() {
        return recordsOf<protocol::SchemaRecord>(connection().table<MigrationPlanTable>().list());
    }
    [[nodiscard]] std::vector<protocol::IpRangeRecord> ranges() {
        return recordsOf<protocol::IpRangeRecord>(connection().table<IpRangeTable>().list());
    }

    protocol::StatusReply changePlan(protocol::SchemaOperation operation, const protocol::SchemaRecord& plan) {
        return MigrationPlanService(connection()).change({.operation = operation, .schema = plan});
    }
    protocol::StatusReply changeRange(protocol::RangeOperation operation, const protocol::IpRangeRecord& range) {
        return IpRangeService(connection()).change({.operation = operation, .range = range});
    }
    // An active one.
    void addRange(const std::u16string& first, const std::u16string& last, std::int32_t rangeType) {
        protocol::IpRangeRecord range;
        range.active = true;
        range.startIp = first;
        range.endIp = last;
        range.rangeType = rangeType;
        changeRange(protocol::RangeOperation::add, range);
    }

    // 0 for one that does not exist.
    [[nodiscard]] std::int64_t numberOf(const std::string& reportId) {
        return connection().table<ReportTable>().find(reportId).value_or(0);
    }

private:
    std::int64_t server_ = 0;
    std::int32_t region_ = 0;
};

} // namespace server::test
