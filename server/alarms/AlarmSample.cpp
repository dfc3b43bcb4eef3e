#include "server/alarms/AlarmSample.h"

namespace server {

void addAlarmSample(Estate&, SampleRandom&, int) {}

} // namespace server
