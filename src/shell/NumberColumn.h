#pragma once

#include "shell/ResultPane.h"

namespace shell {

// Whether the column holds numbers, which are aligned at their last digit: its first cells are empty or show the number
// that they are sorted by, be it with a sign, a decimal point or a unit. The time by which a date is sorted is not the
// number that the date shows.
bool holdsNumbers(const ResultPane& pane, std::int32_t column);

} // namespace shell
