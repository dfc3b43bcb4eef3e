#pragma once

#include "shell/Row.h"
#include "shell/SortOrder.h"

#include <optional>
#include <vector>

namespace shell {

// Sorts rows by a column: by their numbers there, or else by their texts; rows that are equal there are in their
// natural order, in either direction. That is also the order of all rows without another one: neighbours of one class
// are in the natural order of their first column.
void sortRows(std::vector<const Row*>& rows, const std::optional<SortOrder>& order);

// The same, but rows that are equal in the column stay as they stand.
void sortByColumn(std::vector<const Row*>& rows, const SortOrder& order);

} // namespace shell
