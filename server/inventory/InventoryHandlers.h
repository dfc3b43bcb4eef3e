#pragma once

#include "server/commands/Handler.h"

namespace server {

// The commands for inventory reports, migration plans and IP ranges.
[[nodiscard]] std::span<const Handler> inventoryHandlers();

} // namespace server
