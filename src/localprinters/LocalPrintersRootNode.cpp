#include "localprinters/LocalPrintersRootNode.h"

namespace localprinters {

LocalPrintersRootNode::LocalPrintersRootNode(console::Platform& platform) : CBaseNodeItem(platform) {}

} // namespace localprinters
