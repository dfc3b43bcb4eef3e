#pragma once

#include "console/CBaseNodeItem.h"
#include "printers/PrinterNode.h"
#include "protocol/estate/Region.h"

#include <cstdint>
#include <string>

namespace printers {

// A region with its sub-regions and printers.
class PrinterRegionNode final : public console::CBaseNodeItem<PrinterRegionNode> {
public:
    static constexpr console::NodeIdentity identity{
        .displayName = u"Region", .image = 0, .openImage = 1, .children = 2};

    PrinterRegionNode(platform::Platform& platform, protocol::RegionRecord record);

    std::int32_t regionId() const { return regionId_; }
    std::string refreshKey() const override;
    console::Result OnExpand(console::ExpandCode code, console::IConsole& console, console::ScopeId scopeId) override;
    // Reads the server again, also when the region leaves the screen.
    console::Result OnShow(console::IConsole& console, bool show, int again) override;

protected:
    // By what the region holds: nothing has no columns.
    std::span<const console::Column> columns() const override;
    std::span<const console::MenuEntry> menu() const override;
    std::span<const console::VerbChoice> verbs() const override;
    std::vector<console::NodeBase*> rows() const override;
    console::Result runCommand(std::int32_t commandId, console::CommandOrigin origin) override;
    console::Result OnRename(console::IConsole& console, const wire::WideString& newName) override;
    console::Result OnPaste(console::CSnapInItem& source) override;
    console::Result OnQueryPaste(const console::CSnapInItem& source) override;

private:
    // False, with the children of the last read still there, when the server does not answer.
    bool readChildren(CarryOver what);
    console::Result createRegion(console::CommandOrigin origin);
    void addRegion(std::int32_t newRegionId, const wire::WideString& name);
    console::Result deleteRegion();

    std::int32_t regionId_;
    console::NodeArray<PrinterRegionNode> regions_;
    console::NodeArray<PrinterNode> printers_;
};

} // namespace printers
