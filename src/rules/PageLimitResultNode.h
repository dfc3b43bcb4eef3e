#pragma once

#include "console/CBaseNodeItem.h"
#include "protocol/rules/PageLimit.h"

#include <string>

namespace rules {

// A page limit as a row of the list of all.
class PageLimitResultNode final : public console::CBaseNodeItem<PageLimitResultNode> {
public:
    static constexpr console::NodeIdentity identity{
        .displayName = u"Page Limit", .image = 10, .strip = console::driverAndShortIdStrip};

    PageLimitResultNode(platform::Platform& platform, protocol::PageLimitRecord limit);

    std::string refreshKey() const override { return limit_.id; }
    const char16_t* GetResultPaneColInfo(std::int32_t column) override;

protected:
    std::span<const console::MenuEntry> menu() const override;
    console::Result runCommand(std::int32_t commandId, console::CommandOrigin origin) override;

private:
    console::Result edit();
    console::Result remove();

    protocol::PageLimitRecord limit_;
};

} // namespace rules
