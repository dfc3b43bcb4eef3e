#pragma once

#include "console/CBaseNodeItem.h"

namespace queues {

// The top of the regions with their follow-print queues.
class FollowPrintersRootNode final : public console::CBaseNodeItem<FollowPrintersRootNode> {
public:
    static constexpr console::NodeIdentity identity{.displayName = u"Follow Print", .image = 9, .children = 2};

    explicit FollowPrintersRootNode(platform::Platform& platform);
};

} // namespace queues
