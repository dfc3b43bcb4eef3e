#pragma once

#include "console/CBaseNodeItem.h"
#include "rules/PricePlanNode.h"

namespace rules {

// The price plans known to the server, one row each.
class PricePlansNode final : public console::CBaseNodeItem<PricePlansNode> {
public:
    static constexpr console::NodeIdentity identity{
        .displayName = u"Price Plans", .image = 20, .strip = console::driverAndShortIdStrip};

    explicit PricePlansNode(platform::Platform& platform);

protected:
    std::span<const console::Column> columns() const override;
    std::span<const console::MenuEntry> menu() const override;
    void readRows() override;
    std::vector<console::NodeBase*> rows() const override;
    console::Result runCommand(std::int32_t commandId, console::CommandOrigin origin) override;

private:
    console::NodeArray<PricePlanNode> plans_;
};

} // namespace rules
