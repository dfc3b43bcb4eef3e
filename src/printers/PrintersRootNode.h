#pragma once

#include "regions/RegionsRoot.h"

namespace printers {

// The top of the regions with their printers.
class PrintersRootNode final : public regions::RegionsRoot<PrintersRootNode> {
public:
    static constexpr console::NodeIdentity identity{
        .displayName = u"Printers", .nodeType = console::folderNodeType, .image = 7, .children = 1};

    explicit PrintersRootNode(platform::Platform& platform);

protected:
    [[nodiscard]] std::shared_ptr<regions::RegionNode> makeRegion(protocol::RegionRecord record) const override;
    void refreshOthers() override;
    console::Result OnPaste(console::CSnapInItem& source) override;
    console::Result OnQueryPaste(const console::CSnapInItem& source) override;
};

} // namespace printers
