#pragma once

#include "console/CBaseNodeItem.h"

#include <memory>
#include <vector>

namespace rules {

// The top of the branch of the rules on print jobs.
class RulesRootNode final : public console::CBaseNodeItem<RulesRootNode> {
public:
    static constexpr console::NodeIdentity identity{
        .displayName = u"Rules", .image = 20, .children = 2, .viewOptions = 0};

    explicit RulesRootNode(platform::Platform& platform);

protected:
    std::vector<console::ChildKind> childKinds() override;

private:
    std::vector<std::shared_ptr<console::NodeBase>> children_; // in the order of the tree
};

} // namespace rules
