#include "rules/RulesRootNode.h"

namespace rules {

RulesRootNode::RulesRootNode(console::Platform& platform) : CBaseNodeItem(platform) {}

} // namespace rules
