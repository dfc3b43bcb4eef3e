#include "hosts/common/InventoryWriteLookups.h"

#include "protocol/inventory/InventoryReport.h"
#include "protocol/inventory/IpRange.h"
#include "protocol/inventory/Schema.h"

#include <array>

namespace common {
namespace {

using namespace protocol;

// The server sets the queue of a plan itself.
bool samePlan(SchemaRecord shown, const SchemaRecord& sent) {
    shown.schemaId = sent.schemaId;
    shown.newQueueId = sent.newQueueId;
    return sameOnTheWire(shown, sent);
}

Shows planChanged(const ChangeSchemaRequest& request) {
    const ListSchemasRequest list{};
    const auto& plan = request.schema;
    const auto same = [plan](const SchemaRecord& shown) { return samePlan(shown, plan); };
    switch (request.operation) {
    case SchemaOperation::create:
        return showsNew<SchemaRecord>(list, &SchemaRecord::schemaId, same);
    case SchemaOperation::remove:
        return showsGone<SchemaRecord>(list, &SchemaRecord::schemaId, plan.schemaId);
    default:
        return showsChanged<SchemaRecord>(list, &SchemaRecord::schemaId, plan.schemaId, same);
    }
}

Shows reportCreated(const CreateInventoryReportRequest& request) {
    return showsNew<InventoryReportRecord>(
        ListInventoryReportsRequest{}, &InventoryReportRecord::reportId,
        [name = request.reportName](const InventoryReportRecord& shown) { return shown.reportName == name; });
}

Shows reportDeleted(const DeleteInventoryReportRequest& request) {
    return showsGone<InventoryReportRecord>(ListInventoryReportsRequest{}, &InventoryReportRecord::reportId,
                                            request.reportId);
}

bool sameRange(IpRangeRecord shown, const IpRangeRecord& sent) {
    shown.rangeId = sent.rangeId;
    return sameOnTheWire(shown, sent);
}

Shows rangeChanged(const ChangeIpRangeRequest& request) {
    const ListIpRangesRequest list{};
    const auto& range = request.range;
    const auto same = [range](const IpRangeRecord& shown) { return sameRange(shown, range); };
    switch (request.operation) {
    case RangeOperation::add:
        return showsNew<IpRangeRecord>(list, &IpRangeRecord::rangeId, same);
    case RangeOperation::remove:
        return showsGone<IpRangeRecord>(list, &IpRangeRecord::rangeId, range.rangeId);
    case RangeOperation::setActive:
        return showsChanged<IpRangeRecord>(
            list, &IpRangeRecord::rangeId, range.rangeId,
            [active = range.active](const IpRangeRecord& shown) { return shown.active == active; });
    default:
        return showsChanged<IpRangeRecord>(list, &IpRangeRecord::rangeId, range.rangeId, same);
    }
}

constexpr std::array inventoryLookups = {
    lookup<ChangeSchemaRequest, planChanged>(),
    lookup<CreateInventoryReportRequest, reportCreated>(),
    lookup<DeleteInventoryReportRequest, reportDeleted>(),
    lookup<ChangeIpRangeRequest, rangeChanged>(),
};

} // namespace

std::span<const WriteLookup> inventoryWriteLookups() {
    return inventoryLookups;
}

} // namespace common
