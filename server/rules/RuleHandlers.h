#pragma once

#include "server/commands/Handler.h"

namespace server {

// The commands for rule groups and entries, page limits, price plans, short ids and user messages.
[[nodiscard]] std::span<const Handler> ruleHandlers();

} // namespace server
