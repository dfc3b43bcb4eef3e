#include "inventory/MigrationRootNode.h"

namespace inventory {

MigrationRootNode::MigrationRootNode(platform::Platform& platform) : CBaseNodeItem(platform) {}

} // namespace inventory
