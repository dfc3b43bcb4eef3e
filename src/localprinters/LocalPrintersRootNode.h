#pragma once

#include "console/CBaseNodeItem.h"

namespace localprinters {

// The top of the regions of local printers.
class LocalPrintersRootNode final : public console::CBaseNodeItem<LocalPrintersRootNode> {
public:
    static constexpr console::NodeIdentity identity{.displayName = u"Local Printers", .image = 10, .children = 2};

    explicit LocalPrintersRootNode(platform::Platform& platform);
};

} // namespace localprinters
