#pragma once

#include "server/commands/Handler.h"

namespace server {

// The commands for regions, printers and queues.
[[nodiscard]] std::span<const Handler> estateHandlers();

} // namespace server
