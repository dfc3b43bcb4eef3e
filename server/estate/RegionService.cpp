#include "server/estate/RegionService.h"

#include "server/commands/Refusal.h"
#include "server/commands/ReplyBuffer.h"
#include "server/estate/RegionTable.h"

namespace server {

using protocol::StatusReply;
using wire::WideString;

namespace {

constexpr std::uint8_t lastKind = 1;

// To a console a text ends at its first zero, so a name that begins with one is empty there.
bool isBlank(const WideString& name) {
    return name.empty() || name.front() == u'\0';
}

bool isTooLong(const WideString& name) {
    return frameDataSize(protocol::RegionRecord{.name = name}) > largestReceivableFrame;
}

StatusReply refuse(const WideString& text) {
    return refusal(u"Region not changed", text);
}

// Empty when the name is acceptable.
std::optional<StatusReply> refuseName(RegionTable& regions, std::uint8_t kind, std::int32_t parentId,
                                      const WideString& name, std::int32_t self) {
    if (isBlank(name)) {
        return refuse(u"A region needs a name.");
    }
    if (isTooLong(name)) {
        return refuse(u"The name of the region is too long.");
    }
    if (regions.nameTaken(kind, parentId, name, self)) {
        return refuse(u"There is a region named " + quoted(name) + u" here already.");
    }
    return std::nullopt;
}

} // namespace

StatusReply RegionService::create(const protocol::CreateRegionRequest& request) {
    auto& regions = connection_.table<RegionTable>();
    if (request.kind > lastKind) {
        return refuse(u"There is no such kind of region.");
    }
    if (request.parentId != 0 && !regions.find(request.kind, request.parentId)) {
        return refuse(u"The region above does not exist any more.");
    }
    if (const auto refused = refuseName(regions, request.kind, request.parentId, request.name, 0)) {
        return *refused;
    }
    regions.insert(request.kind, request.parentId, request.name);
    return done();
}

StatusReply RegionService::rename(const protocol::RenameRegionRequest& request) {
    auto& regions = connection_.table<RegionTable>();
    const auto region = regions.find(request.kind, request.regionId);
    if (!region) {
        return refuse(u"The region does not exist any more.");
    }
    if (const auto refused = refuseName(regions, request.kind, region->parentId, request.name, region->id)) {
        return *refused;
    }
    regions.rename(region->id, request.name);
    return done();
}

StatusReply RegionService::move(const protocol::MoveRegionRequest& request) {
    auto& regions = connection_.table<RegionTable>();
    const auto region = regions.find(request.kind, request.regionId);
    if (!region) {
        return refuse(u"The region does not exist any more.");
    }
    if (request.parentId != 0 && !regions.find(request.kind, request.parentId)) {
        return refuse(u"The region to move to does not exist any more.");
    }
    if (request.parentId != 0 && regions.isWithin(request.kind, request.parentId, region->id)) {
        return refuse(u"A region cannot be moved below itself.");
    }
    if (regions.nameTaken(request.kind, request.parentId, region->name, region->id)) {
        return refuse(u"There is a region named " + quoted(region->name) + u" there already.");
    }
    regions.move(region->id, request.parentId);
    return done();
}

StatusReply RegionService::remove(const protocol::DeleteRegionRequest& request) {
    auto& regions = connection_.table<RegionTable>();
    const auto region = regions.find(request.kind, request.regionId);
    if (!region) {
        return refuse(u"The region does not exist any more.");
    }
    if (regions.hasRegions(request.kind, region->id)) {
        return refuse(u"The region " + quoted(region->name) + u" still contains regions.");
    }
    if (regions.hasRecords(request.kind, region->id)) {
        return refuse(u"The region " + quoted(region->name) + u" still contains printers or queues.");
    }
    regions.remove(region->id);
    return done();
}

} // namespace server
