#include "alarms/AlarmRootNode.h"

namespace alarms {

AlarmRootNode::AlarmRootNode(platform::Platform& platform) : CBaseNodeItem(platform) {}

} // namespace alarms
