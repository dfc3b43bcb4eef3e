#pragma once

#include "server/commands/Handler.h"

namespace server {

// The commands for configurations of driver models and of queues.
[[nodiscard]] std::span<const Handler> configurationHandlers();

} // namespace server
