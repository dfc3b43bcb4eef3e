#include "queues/FollowPrintersRootNode.h"

namespace queues {

FollowPrintersRootNode::FollowPrintersRootNode(platform::Platform& platform) : CBaseNodeItem(platform) {}

} // namespace queues
