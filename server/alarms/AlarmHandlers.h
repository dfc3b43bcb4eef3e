#pragma once

#include "server/commands/Handler.h"

namespace server {

// The commands for alarm programs and e-mail recipients.
[[nodiscard]] std::span<const Handler> alarmHandlers();

} // namespace server
