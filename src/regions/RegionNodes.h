#pragma once

#include "client/CQVXAdminClass.h"
#include "console/NodeBase.h"
#include "protocol/estate/Region.h"

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace regions {

// The regions right below a region (0: the top), last of the server's list first. Throws what the client throws; false
// without a connection or an answer, and then below is left alone.
bool readRegionsBelow(client::CQVXAdminClass& client, protocol::RegionKind kind, std::int32_t parentId,
                      std::vector<protocol::RegionRecord>& below);

// A node for each region, made as Node(platform, region, more...) and placed under its parent.
template <class Node, class... More>
console::NodeArray<Node> makeRegionNodes(platform::Platform& platform, const console::NodeBase& parent,
                                         std::vector<protocol::RegionRecord> regions, const More&... more) {
    console::NodeArray<Node> nodes;
    nodes.reserve(regions.size());
    for (auto& region : regions) {
        nodes.push_back(std::make_shared<Node>(platform, std::move(region), more...));
        nodes.back()->setParent(parent);
    }
    return nodes;
}

// The refresh key of a region's node: never that of a printer or queue beside it.
std::string regionKey(std::int32_t regionId);

} // namespace regions
