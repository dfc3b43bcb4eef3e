#pragma once

#include "forms/LayoutPlan.h"

namespace forms {

// Rearranges the stacked content of a dialog so that it needs less height and more width. What can't be divided stays
// as it is.
Column rearranged(Column stacked, Arrangement arrangement);

} // namespace forms
