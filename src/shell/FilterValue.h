#pragma once

#include "shell/FilterQuery.h"

namespace shell {

// What a value of a filter means for a column that sorts by numbers: a whole number, or for a month, a day, a minute or
// a second (2024-03, 2024-03-05, 2024-03-05 17:04, 2024-03-05 17:04:09) its milliseconds as in wire::wireDateOrder.
// None for anything else.
[[nodiscard]] std::optional<NumberRange> numbersMeant(wire::WideStringView value);

} // namespace shell
