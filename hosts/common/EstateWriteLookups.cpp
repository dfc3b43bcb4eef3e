#include "hosts/common/EstateWriteLookups.h"

#include "protocol/estate/Printer.h"
#include "protocol/estate/Region.h"

#include <array>

namespace common {
namespace {

using namespace protocol;

std::vector<RegionRecord> regions(std::uint8_t kind) {
    client::CQVXAdminClass client;
    if (!client.listRegions(static_cast<RegionKind>(kind))) {
        throw std::runtime_error("the regions can't be listed");
    }
    return client.regions();
}

// Shows the region, if the rest holds.
template <class Rest>
Shows showsRegion(std::uint8_t kind, std::int32_t id, Rest rest) {
    return [=] {
        const auto all = regions(kind);
        const RegionRecord* const region = findById(all, &RegionRecord::id, id);
        return region != nullptr && rest(*region);
    };
}

Shows created(const CreateRegionRequest& request) {
    std::set<std::int32_t> before;
    for (const auto& region : regions(request.kind)) {
        before.insert(region.id);
    }
    return [=] {
        return std::ranges::any_of(regions(request.kind), [&](const RegionRecord& region) {
            return !before.contains(region.id) && region.parentId == request.parentId && region.name == request.name;
        });
    };
}

Shows renamed(const RenameRegionRequest& request) {
    return showsRegion(request.kind, request.regionId,
                       [name = request.name](const RegionRecord& region) { return region.name == name; });
}

Shows moved(const MoveRegionRequest& request) {
    return showsRegion(request.kind, request.regionId, [parentId = request.parentId](const RegionRecord& region) {
        return region.parentId == parentId;
    });
}

// There is no region 0, which stands for the top of a tree: it is missing all the time.
Shows regionDeleted(const DeleteRegionRequest& request) {
    return [=] {
        return request.regionId != 0 && findById(regions(request.kind), &RegionRecord::id, request.regionId) == nullptr;
    };
}

ListPrinterRecordsRequest byId(const std::string& id, std::uint16_t mode) {
    return {.printerId = id, .regionId = 0, .mode = mode};
}

Shows printerMoved(const MovePrinterRequest& request) {
    return showsChanged<PrinterRecord>(
        byId(request.printerId, printerListMode::otherRowById), &PrinterRecord::id, request.printerId,
        [regionId = request.regionId](const PrinterRecord& record) { return record.regionId == regionId; });
}

Shows recordDeleted(const DeleteRecordRequest& request) {
    const auto mode = request.type == RecordDeletion::queue ? printerListMode::queueById : printerListMode::printerById;
    return showsGone<PrinterRecord>(byId(request.id, mode), &PrinterRecord::id, request.id);
}

Shows statusOctetOrderSet(const SetStatusOctetOrderRequest& request) {
    return [=] { return client::CQVXAdminClass().getStatusOctetOrder(request.printerId).value() == request.order; };
}

constexpr std::array estateLookups = {
    lookup<CreateRegionRequest, created>(),
    lookup<RenameRegionRequest, renamed>(),
    lookup<MoveRegionRequest, moved>(),
    lookup<DeleteRegionRequest, regionDeleted>(),
    lookup<MovePrinterRequest, printerMoved>(),
    lookup<DeleteRecordRequest, recordDeleted>(),
    lookup<SetStatusOctetOrderRequest, statusOctetOrderSet>(),
};

} // namespace

std::span<const WriteLookup> estateWriteLookups() {
    return estateLookups;
}

} // namespace common
