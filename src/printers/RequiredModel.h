#pragma once

#include "drivers/BrandAndModelLists.h"

namespace printers {

// Whether a model is chosen; says so when none is, and moves the focus there.
[[nodiscard]] bool modelChosen(drivers::BrandAndModelLists& brandAndModel);

} // namespace printers
