#pragma once

#include "console/CBaseNodeItem.h"
#include "rules/PageLimitResultNode.h"

namespace rules {

// The page limits known to the server, one row each.
class PageLimitersNode final : public console::CBaseNodeItem<PageLimitersNode> {
public:
    static constexpr console::NodeIdentity identity{
        .displayName = u"Page Limiters", .image = 20, .strip = console::driverAndShortIdStrip};

    explicit PageLimitersNode(platform::Platform& platform);

protected:
    std::span<const console::Column> columns() const override;
    std::span<const console::MenuEntry> menu() const override;
    void readRows() override;
    std::vector<console::NodeBase*> rows() const override;
    console::Result runCommand(std::int32_t commandId, console::CommandOrigin origin) override;

private:
    console::NodeArray<PageLimitResultNode> limits_;
};

} // namespace rules
