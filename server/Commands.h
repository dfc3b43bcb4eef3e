#pragma once

#include "server/commands/CommandTable.h"

namespace server {

// All commands that vantreld answers, except the two of a login.
[[nodiscard]] const CommandTable& commands();

} // namespace server
