#include "regions/RegionsBelow.h"

namespace regions {

// The server returns the whole tree, whose levels are separated here.
bool readRegionsBelow(client::CQVXAdminClass& client, protocol::RegionKind kind, std::int32_t parentId,
                      std::vector<protocol::RegionRecord>& below) {
    if (!client.listRegions(kind)) {
        return false;
    }
    std::vector<protocol::RegionRecord> found;
    for (protocol::RegionRecord region; client.nextRegion(region.id, region.parentId, region.name); region = {}) {
        if (region.parentId == parentId) {
            found.push_back(std::move(region));
        }
    }
    below = std::move(found);
    return true;
}

std::string regionKey(std::int32_t regionId) {
    return "region " + std::to_string(regionId);
}

} // namespace regions
