#pragma once

#include "regions/RegionsRoot.h"

namespace localprinters {

// The top of the regions of local printers.
class LocalPrintersRootNode final : public regions::RegionsRoot<LocalPrintersRootNode> {
public:
    static constexpr console::NodeIdentity identity{.displayName = u"Local Printers", .image = 10, .children = 2};

    explicit LocalPrintersRootNode(platform::Platform& platform);

protected:
    [[nodiscard]] std::shared_ptr<regions::RegionNode> makeRegion(protocol::RegionRecord record) const override;
    [[nodiscard]] std::span<const console::NodeCommand<LocalPrintersRootNode>> commands() const override;

private:
    console::Result deleteTop(console::CommandOrigin origin);
};

} // namespace localprinters
