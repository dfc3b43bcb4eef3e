#pragma once

#include "server/commands/Handler.h"

namespace server {

// The commands for brands, models, drivers and deployments.
[[nodiscard]] std::span<const Handler> driverHandlers();

} // namespace server
