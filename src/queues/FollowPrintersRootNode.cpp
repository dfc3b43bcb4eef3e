#include "queues/FollowPrintersRootNode.h"

namespace queues {

FollowPrintersRootNode::FollowPrintersRootNode(console::Platform& platform) : CBaseNodeItem(platform) {}

} // namespace queues
