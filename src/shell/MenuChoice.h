#pragma once

#include "shell/MenuItem.h"

#include <span>

namespace shell {

// Which entry of a menu a key or a double click stands for; null when there is none.

// The first entry that can be chosen. None when that one deletes or removes something: opening must not destroy.
const MenuItem* openingEntry(std::span<const MenuItem> menu);
// The first entry that can be chosen and deletes or removes something.
const MenuItem* removingEntry(std::span<const MenuItem> menu);

} // namespace shell
