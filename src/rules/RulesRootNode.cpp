#include "rules/RulesRootNode.h"

#include "rules/PageLimitersNode.h"
#include "rules/PricePlansNode.h"
#include "rules/RuleSetNode.h"
#include "rules/ShortIdNode.h"

namespace rules {

RulesRootNode::RulesRootNode(platform::Platform& platform)
    : CBaseNodeItem(platform),
      children_{std::make_shared<RuleSetNode>(platform), std::make_shared<PricePlansNode>(platform),
                std::make_shared<PageLimitersNode>(platform), std::make_shared<ShortIdNode>(platform)} {}

std::vector<console::ChildKind> RulesRootNode::childKinds() {
    return {fixedChildren(pointersTo(children_))};
}

} // namespace rules
