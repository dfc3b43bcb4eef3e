#pragma once

#include "console/CBaseNodeItem.h"
#include "printers/PrinterRegionNode.h"

namespace printers {

// The top of the regions with their printers.
class PrintersRootNode final : public console::CBaseNodeItem<PrintersRootNode> {
public:
    static constexpr console::NodeIdentity identity{
        .displayName = u"Printers", .nodeType = console::folderNodeType, .image = 7, .children = 1};

    explicit PrintersRootNode(platform::Platform& platform);

    console::Result OnExpand(console::ExpandCode code, console::IConsole& console, console::ScopeId scopeId) override;

protected:
    std::span<const console::Column> columns() const override;
    std::span<const console::MenuEntry> menu() const override;
    std::vector<console::NodeBase*> rows() const override;
    console::Result runCommand(std::int32_t commandId, console::CommandOrigin origin) override;
    console::Result OnPaste(console::CSnapInItem& source) override;
    console::Result OnQueryPaste(const console::CSnapInItem& source) override;

private:
    console::Result createRegion(console::CommandOrigin origin);

    console::NodeArray<PrinterRegionNode> regions_;
};

} // namespace printers
