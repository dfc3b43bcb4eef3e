#pragma once

#include "console/CBaseNodeItem.h"
#include "rules/RuleGroupNode.h"

namespace rules {

// The rule groups known to the server, one row each: the rule set.
class RuleSetNode final : public console::CBaseNodeItem<RuleSetNode> {
public:
    static constexpr console::NodeIdentity identity{.displayName = u"Rule Groups", .image = 20};

    explicit RuleSetNode(platform::Platform& platform);

protected:
    std::span<const console::Column> columns() const override;
    std::span<const console::MenuEntry> menu() const override;
    void readRows() override;
    std::vector<console::NodeBase*> rows() const override;
    console::Result runCommand(std::int32_t commandId, console::CommandOrigin origin) override;

private:
    console::NodeArray<RuleGroupNode> groups_;
};

} // namespace rules
