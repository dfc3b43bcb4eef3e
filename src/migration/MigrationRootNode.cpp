#include "migration/MigrationRootNode.h"

namespace migration {

MigrationRootNode::MigrationRootNode(platform::Platform& platform) : CBaseNodeItem(platform) {}

} // namespace migration
