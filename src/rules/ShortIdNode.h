#pragma once

#include "console/CBaseNodeItem.h"
#include "rules/ShortIdResultNode.h"

namespace rules {

// The rules about short ids known to the server, one row each.
class ShortIdNode final : public console::CBaseNodeItem<ShortIdNode> {
public:
    static constexpr console::NodeIdentity identity{
        .displayName = u"Short Id", .image = 20, .strip = console::driverAndShortIdStrip};

    explicit ShortIdNode(platform::Platform& platform);

protected:
    std::span<const console::Column> columns() const override;
    std::span<const console::MenuEntry> menu() const override;
    void readRows() override;
    std::vector<console::NodeBase*> rows() const override;
    console::Result runCommand(std::int32_t commandId, console::CommandOrigin origin) override;

private:
    console::NodeArray<ShortIdResultNode> shortIds_;
};

} // namespace rules
