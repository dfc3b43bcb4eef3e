#include "queues/FollowPrintersRootNode.h"

#include "queues/QueueRegionNode.h"

#include <utility>

namespace queues {

FollowPrintersRootNode::FollowPrintersRootNode(platform::Platform& platform)
    : RegionsRoot(platform, regions::printersAndQueues) {}

std::shared_ptr<regions::RegionNode> FollowPrintersRootNode::makeRegion(protocol::RegionRecord record) const {
    return std::make_shared<QueueRegionNode>(platform(), std::move(record), QueueMode::followPrint);
}

} // namespace queues
