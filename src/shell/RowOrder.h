#pragma once

#include "shell/Row.h"
#include "shell/SortOrder.h"

#include <optional>
#include <vector>

namespace shell {

// Puts rows into the order of a column; rows that are equal there stay as they were. Without an order, neighbours of
// one class are put into the natural order of their first column.
void sortRows(std::vector<const Row*>& rows, const std::optional<SortOrder>& order);

} // namespace shell
