#pragma once

#include "shell/Row.h"
#include "shell/SortOrder.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace shell {

// Puts rows into the order of a column: by their numbers there, else by their texts; rows that are equal there stay as
// they were. Without an order, neighbours of one class are put into the natural order of their first column. `likely`
// names each row once, by its place, in the order in which they stood before; nothing when that is not known. Most
// refreshes bring rows that stand as before, and to see that takes less than to sort.
void sortRows(std::vector<const Row*>& rows, const std::optional<SortOrder>& order,
              std::span<const std::uint32_t> likely = {});

} // namespace shell
