#include "regions/RegionDeletion.h"

#include "regions/RegionsBelow.h"

namespace regions {

RegionContents readRegionContents(client::CQVXAdminClass& client, std::int32_t regionId) {
    std::int16_t printers = 0;
    std::int16_t followQueues = 0;
    std::vector<protocol::RegionRecord> subRegions;
    if (!client.getPrintersInRegion(regionId, printers) || !client.getFollowQueuesInRegion(regionId, followQueues) ||
        !readRegionsBelow(client, protocol::RegionKind::printersAndQueues, regionId, subRegions)) {
        return RegionContents::unknown;
    }
    // The count is what the server announced: if it is not 0, the region is not empty, however much of the list
    // arrived.
    const bool unread = client.announcedRegions() < 0;
    return printers == 0 && followQueues == 0 && subRegions.empty() && !unread ? RegionContents::empty
                                                                               : RegionContents::something;
}

RegionContents readLocalRegionContents(client::CQVXAdminClass& client, std::int32_t regionId) {
    std::int16_t printers = 0;
    if (!client.getLocalPrintersInRegion(regionId, printers)) {
        return RegionContents::unknown;
    }
    return printers == 0 ? RegionContents::empty : RegionContents::something;
}

} // namespace regions
