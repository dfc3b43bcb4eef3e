#pragma once

#include "console/CBaseNodeItem.h"

namespace alarms {

// The top of the branch of alarm programs and the recipients of their mails.
class AlarmRootNode final : public console::CBaseNodeItem<AlarmRootNode> {
public:
    static constexpr console::NodeIdentity identity{.displayName = u"Alarms", .image = 16, .children = 2};

    explicit AlarmRootNode(platform::Platform& platform);
};

} // namespace alarms
