#pragma once

#include "console/CBaseNodeItem.h"
#include "protocol/rules/ShortId.h"

#include <string>

namespace rules {

// A rule about short ids as a row of the list of all.
class ShortIdResultNode final : public console::CBaseNodeItem<ShortIdResultNode> {
public:
    static constexpr console::NodeIdentity identity{
        .displayName = u"Short Id", .image = 14, .strip = console::driverAndShortIdStrip};

    ShortIdResultNode(platform::Platform& platform, protocol::ShortIdRecord shortId);

    std::string refreshKey() const override;
    const char16_t* GetResultPaneColInfo(std::int32_t column) override;

protected:
    std::span<const console::MenuEntry> menu() const override;
    console::Result runCommand(std::int32_t commandId, console::CommandOrigin origin) override;

private:
    console::Result edit();
    console::Result remove();

    protocol::ShortIdRecord shortId_;
};

} // namespace rules
