#include "drivers/DriversRootNode.h"

namespace drivers {

DriversRootNode::DriversRootNode(console::Platform& platform) : CBaseNodeItem(platform) {}

} // namespace drivers
