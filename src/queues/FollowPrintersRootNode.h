#pragma once

#include "regions/RegionsRoot.h"

namespace queues {

// The top of the regions with their follow-print queues. The regions are those of printers and queues.
class FollowPrintersRootNode final : public regions::RegionsRoot<FollowPrintersRootNode> {
public:
    static constexpr console::NodeIdentity identity{.displayName = u"Follow Print", .image = 9, .children = 2};

    explicit FollowPrintersRootNode(platform::Platform& platform);

protected:
    [[nodiscard]] std::shared_ptr<regions::RegionNode> makeRegion(protocol::RegionRecord record) const override;
};

} // namespace queues
