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

console::Result RulesRootNode::OnExpand(console::ExpandCode code, console::IConsole& console,
                                        console::ScopeId scopeId) {
    if (!beginExpand(code, console, scopeId)) {
        return console::Result::ok;
    }
    for (const auto& child : children_) {
        insertChild(console, *child);
    }
    return console::Result::ok;
}

} // namespace rules
