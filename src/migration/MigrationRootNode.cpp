#include "migration/MigrationRootNode.h"

namespace migration {

MigrationRootNode::MigrationRootNode(console::Platform& platform) : CBaseNodeItem(platform) {}

} // namespace migration
