#pragma once

#include "console/CBaseNodeItem.h"

namespace drivers {

// The top of the branch of brands, models and their drivers.
class DriversRootNode final : public console::CBaseNodeItem<DriversRootNode> {
public:
    static constexpr console::NodeIdentity identity{.displayName = u"Drivers", .image = 11, .children = 2};

    explicit DriversRootNode(platform::Platform& platform);
};

} // namespace drivers
