#pragma once

#include "console/CBaseNodeItem.h"
#include "localprinters/LocalPrinterQueueNode.h"
#include "regions/RegionNode.h"

namespace localprinters {

inline constexpr console::MenuEntry deleteLocalRegionEntry{u"Delete local region", u"To delete region", 302};

// A region with its sub-regions and local printers.
class LocalPrinterRegionNode final : public console::CBaseNodeItem<LocalPrinterRegionNode, regions::RegionNode> {
public:
    static constexpr console::NodeIdentity identity{
        .displayName = u"Region", .image = 0, .openImage = 1, .children = 2};

    LocalPrinterRegionNode(platform::Platform& platform, protocol::RegionRecord record);

protected:
    [[nodiscard]] std::shared_ptr<regions::RegionNode> makeRegion(protocol::RegionRecord record) const override;
    std::vector<console::ChildKind> childKinds() override;
    // Depend on what the region contains: an empty one has no columns.
    [[nodiscard]] std::span<const console::Column> columns() const override;
    [[nodiscard]] std::span<const console::NodeCommand<LocalPrinterRegionNode>> commands() const override;
    [[nodiscard]] std::vector<console::NodeBase*> rows() const override;

private:
    console::NodeArray<LocalPrinterQueueNode> printers_;
};

} // namespace localprinters
