#include "client/alarms/AlarmCommands.h"

namespace client {}
