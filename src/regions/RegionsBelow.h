#pragma once

#include "client/CQVXAdminClass.h"
#include "protocol/estate/Region.h"

#include <cstdint>
#include <string>
#include <vector>

namespace regions {

// The regions directly below a region (0: the top), in reverse of the server's order. Throws what the client throws;
// false without a connection or an answer, and then `below` is unchanged.
bool readRegionsBelow(client::CQVXAdminClass& client, protocol::RegionKind kind, std::int32_t parentId,
                      std::vector<protocol::RegionRecord>& below);

// The refresh key of a region's node: never that of a printer or queue beside it.
std::string regionKey(std::int32_t regionId);

} // namespace regions
