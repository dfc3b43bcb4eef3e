#include "server/alarms/AlarmHandlers.h"

namespace server {

std::span<const Handler> alarmHandlers() {
    return {};
}

} // namespace server
