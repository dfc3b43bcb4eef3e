#pragma once

#include "console/CBaseNodeItem.h"

namespace rules {

// The top of the branch that holds the rules on print jobs.
class RulesRootNode final : public console::CBaseNodeItem<RulesRootNode> {
public:
    static constexpr console::NodeIdentity identity{.displayName = u"Rules", .image = 20, .children = 2};

    explicit RulesRootNode(console::Platform& platform);
};

} // namespace rules
