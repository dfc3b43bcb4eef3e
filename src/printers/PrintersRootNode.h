#pragma once

#include "console/CBaseNodeItem.h"
#include "regions/RegionHolder.h"

namespace printers {

// The top of the regions with their printers.
class PrintersRootNode final : public console::CBaseNodeItem<PrintersRootNode, regions::RegionHolder> {
public:
    static constexpr console::NodeIdentity identity{
        .displayName = u"Printers", .nodeType = console::folderNodeType, .image = 7, .children = 1};

    explicit PrintersRootNode(platform::Platform& platform);

protected:
    std::shared_ptr<regions::RegionNode> makeRegion(protocol::RegionRecord record) const override;
    void refreshOthers() override;
    std::vector<console::ChildKind> childKinds() override { return {regionsBelow()}; }
    std::span<const console::Column> columns() const override;
    std::span<const console::NodeCommand<PrintersRootNode>> commands() const override;
    std::vector<console::NodeBase*> rows() const override;
    console::Result OnPaste(console::CSnapInItem& source) override;
    console::Result OnQueryPaste(const console::CSnapInItem& source) override;
};

} // namespace printers
