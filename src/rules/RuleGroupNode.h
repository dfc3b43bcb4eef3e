#pragma once

#include "console/CBaseNodeItem.h"
#include "protocol/rules/RuleGroup.h"

#include <string>

namespace rules {

// A rule group as a row of the list of all.
class RuleGroupNode final : public console::CBaseNodeItem<RuleGroupNode> {
public:
    static constexpr console::NodeIdentity identity{.displayName = u"Rule Group", .image = 19};

    RuleGroupNode(platform::Platform& platform, protocol::RuleGroupRecord group);

    std::string refreshKey() const override { return group_.id; }
    const char16_t* GetResultPaneColInfo(std::int32_t column) override;

protected:
    std::span<const console::MenuEntry> menu() const override;
    console::Result runCommand(std::int32_t commandId, console::CommandOrigin origin) override;

private:
    console::Result edit();
    console::Result remove();

    protocol::RuleGroupRecord group_;
};

} // namespace rules
