#include "localprinters/LocalPrintersRootNode.h"

namespace localprinters {

LocalPrintersRootNode::LocalPrintersRootNode(platform::Platform& platform) : CBaseNodeItem(platform) {}

} // namespace localprinters
