#include "alarms/AlarmRootNode.h"

namespace alarms {

AlarmRootNode::AlarmRootNode(console::Platform& platform) : CBaseNodeItem(platform) {}

} // namespace alarms
