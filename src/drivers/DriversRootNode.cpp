#include "drivers/DriversRootNode.h"

namespace drivers {

DriversRootNode::DriversRootNode(platform::Platform& platform) : CBaseNodeItem(platform) {}

} // namespace drivers
