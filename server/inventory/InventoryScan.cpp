#include "server/inventory/InventoryScan.h"

#include "protocol/inventory/InventoryReport.h"
#include "protocol/inventory/IpRange.h"
#include "server/inventory/IpRangeTable.h"
#include "server/inventory/OldEstateTable.h"
#include "server/inventory/OwnPrinters.h"
#include "server/inventory/ReportTable.h"
#include "server/store/NameKey.h"

#include <map>
#include <unordered_set>

namespace server {

namespace {

// The printers of one model: how many there are and which workstations use them, each of them counted once.
struct ModelTally {
    std::u16string name;
    std::int64_t queues = 0;
    std::unordered_set<std::int64_t> clients;
};

bool isOfKind(std::uint16_t reportType, bool local, bool shared) {
    if (reportType == protocol::reportType::onlyLocal) {
        return local;
    }
    return reportType != protocol::reportType::onlyShared || shared;
}

} // namespace

void InventoryScan::run(const protocol::InventoryReportRecord& report, const IpScope& scope,
                        const ReportPeriod& period) {
    auto& oldEstate = connection_.table<OldEstateTable>();
    auto& reports = connection_.table<ReportTable>();
    auto& own = connection_.table<OwnPrinters>();
    const RangeMap ranges(connection_.table<IpRangeTable>().active());
    const auto number = reports.insert(report, period);
    std::map<Bytes, ModelTally> models;
    for (auto rows = oldEstate.seenBetween(period.from, period.to); rows.next();) {
        FoundPrinter found;
        found.local = rows.number(7) != 0;
        found.printerIp = rows.text(2);
        if (!isOfKind(report.reportType, found.local, rows.number(8) != 0)) {
            continue;
        }
        // A printer without its own address is at the address of its host.
        const auto address = parseAddress(found.printerIp.empty() ? rows.text(10) : rows.text(2));
        if (!scope.covers(address)) {
            continue;
        }
        if (address) {
            found.rangeType = ranges.at(*address);
        }
        if (found.rangeType == protocol::rangeType::ignore) {
            continue;
        }
        if (report.reportType == protocol::reportType::onlyMapped && !own.anyAt(found.printerIp)) {
            continue;
        }
        found.entryId = newId_();
        found.windowsName = rows.wide(1);
        found.printerPort = rows.text(3);
        found.model = rows.wide(4);
        found.location = rows.wide(5);
        found.comment = rows.wide(6);
        found.workstation = rows.wide(9);
        const auto clients = oldEstate.clientsOf(rows.number(0));
        found.clientCount = static_cast<std::int64_t>(clients.size());
        reports.addPrinter(number, found);
        auto& tally = models[nameKey(found.model)];
        if (tally.queues++ == 0) {
            tally.name = found.model;
        }
        tally.clients.insert(clients.begin(), clients.end());
    }
    for (const auto& [key, tally] : models) {
        reports.addModel(number, key, tally.name, tally.queues, static_cast<std::int64_t>(tally.clients.size()));
    }
}

} // namespace server
