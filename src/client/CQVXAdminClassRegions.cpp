#include "client/CQVXAdminClass.h"

#include "client/RegionSummary.h"
#include "client/ServerCalls.h"
#include "protocol/estate/Region.h"

namespace client {
namespace {

constexpr std::uint8_t byteOf(protocol::RegionKind kind) {
    return static_cast<std::uint8_t>(kind);
}

// All regions usually arrive in one message. A server with more of them than fit into a frame sends only a count,
// recognisable because no record fits behind it, and then each region in its own frame.
std::int16_t readRegions(Exchange& exchange, wire::Message& first, std::vector<protocol::RegionRecord>& regions) {
    const bool onlyCount = first.remaining() == sizeof(std::uint16_t);
    const std::int16_t count = exchange.run([&] { return Exchange::readCount(first); });
    if (onlyCount) {
        readRecords(exchange, count, regions);
        return count;
    }
    exchange.run([&] {
        for (std::int32_t index = 0; index < count; ++index) {
            regions.push_back(protocol::read<protocol::RegionRecord>(first));
        }
    });
    exchange.noteRecords(static_cast<std::uint32_t>(regions.size()));
    return count;
}

} // namespace

bool CQVXAdminClass::listRegions(protocol::RegionKind kind, std::int32_t parentId) {
    const protocol::ListRegionsRequest request{.kind = byteOf(kind), .parentId = parentId};
    std::vector<protocol::RegionRecord> regions;
    regions_.clear();
    Exchange exchange(*this, protocol::commandOf<protocol::ListRegionsRequest>(), regionSummary(parentId));
    if (!exchange.connect()) {
        return false;
    }
    exchange.send(dataMessageOf(request));
    const auto first = exchange.receive();
    const std::int16_t announced = readRegions(exchange, *first, regions);
    regions_.fill(std::move(regions), announced);
    return true;
}

bool CQVXAdminClass::nextRegion(std::int32_t& id, std::int32_t& parentId, wire::WideString& name) {
    protocol::RegionRecord region;
    if (!regions_.next(region)) {
        return false;
    }
    id = region.id;
    parentId = region.parentId;
    name = std::move(region.name);
    return true;
}

bool CQVXAdminClass::createRegion(protocol::RegionKind kind, std::int32_t parentId, const wire::WideString& name) {
    return sendCommand(*this, protocol::CreateRegionRequest{.kind = byteOf(kind), .parentId = parentId, .name = name},
                       wire::toUtf8(name));
}

bool CQVXAdminClass::renameRegion(protocol::RegionKind kind, std::int32_t regionId, const wire::WideString& newName) {
    return sendCommand(*this,
                       protocol::RenameRegionRequest{.kind = byteOf(kind), .regionId = regionId, .name = newName},
                       wire::toUtf8(newName));
}

bool CQVXAdminClass::moveRegion(protocol::RegionKind kind, std::int32_t regionId, std::int32_t newParentId) {
    return sendCommand(*this,
                       protocol::MoveRegionRequest{.kind = byteOf(kind), .regionId = regionId, .parentId = newParentId},
                       regionSummary(regionId));
}

bool CQVXAdminClass::deleteRegion(protocol::RegionKind kind, std::int32_t regionId) {
    return sendCommand(*this, protocol::DeleteRegionRequest{.regionId = regionId, .kind = byteOf(kind)},
                       regionSummary(regionId));
}

} // namespace client
