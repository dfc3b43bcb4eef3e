#pragma once

#include "console/CBaseNodeItem.h"

namespace inventory {

// The top of the branch that migrates old printers: inventory, plans and address ranges.
class MigrationRootNode final : public console::CBaseNodeItem<MigrationRootNode> {
public:
    static constexpr console::NodeIdentity identity{.displayName = u"Migration", .image = 21, .children = 2};

    explicit MigrationRootNode(platform::Platform& platform);
};

} // namespace inventory
