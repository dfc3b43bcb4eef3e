#pragma once

#include "shell/MenuItem.h"

#include <string>
#include <vector>

namespace ctl {

// The entry of a menu with that text or id. Throws Failure (refused), listing the choices, when there is none, or when
// it is disabled.
const shell::MenuItem& entryCalled(const std::vector<shell::MenuItem>& menu, const std::string& wanted);

} // namespace ctl
