#pragma once

#include "console/CBaseNodeItem.h"
#include "printers/PrinterNode.h"
#include "regions/RegionNode.h"

namespace printers {

// A region with its sub-regions and printers.
class PrinterRegionNode final : public console::CBaseNodeItem<PrinterRegionNode, regions::RegionNode> {
public:
    static constexpr console::NodeIdentity identity{
        .displayName = u"Region", .image = 0, .openImage = 1, .children = 2};

    PrinterRegionNode(platform::Platform& platform, protocol::RegionRecord record);

protected:
    std::shared_ptr<regions::RegionNode> makeRegion(protocol::RegionRecord record) const override;
    void refreshOthers() override;
    std::vector<console::ChildKind> childKinds() override;
    // Depend on what the region contains: an empty one has no columns.
    std::span<const console::Column> columns() const override;
    std::span<const console::NodeCommand<PrinterRegionNode>> commands() const override;
    std::span<const console::VerbChoice> verbs() const override;
    std::vector<console::NodeBase*> rows() const override;
    console::Result OnPaste(console::CSnapInItem& source) override;
    console::Result OnQueryPaste(const console::CSnapInItem& source) override;

private:
    console::Result addPrinter(console::CommandOrigin origin);
    bool movePrinterHere(const PrinterNode& printer) const;

    console::NodeArray<PrinterNode> printers_;
};

} // namespace printers
