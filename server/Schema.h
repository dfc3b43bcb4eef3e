#pragma once

#include "server/store/Migration.h"

namespace server {

// The tables of all domains.
[[nodiscard]] const Schema& schema();

} // namespace server
