#pragma once

#include "console/CBaseNodeItem.h"
#include "protocol/rules/PricePlan.h"

#include <string>

namespace rules {

// A price plan as a row of the list of all.
class PricePlanNode final : public console::CBaseNodeItem<PricePlanNode> {
public:
    static constexpr console::NodeIdentity identity{
        .displayName = u"Price Plan", .image = 12, .strip = console::driverAndShortIdStrip};

    PricePlanNode(platform::Platform& platform, protocol::PricePlanRecord plan);

    std::string refreshKey() const override { return plan_.id; }
    const char16_t* GetResultPaneColInfo(std::int32_t column) override;

protected:
    std::span<const console::MenuEntry> menu() const override;
    console::Result runCommand(std::int32_t commandId, console::CommandOrigin origin) override;

private:
    console::Result edit();
    console::Result remove();

    protocol::PricePlanRecord plan_;
};

} // namespace rules
