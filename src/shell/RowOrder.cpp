#include "shell/RowOrder.h"

#include "shell/SortKeys.h"

#include <algorithm>
#include <span>

namespace shell {
namespace {

using Rows = std::span<const Row*>;

// The number of rows that are sorted together with the first one.
std::size_t lengthOfRun(Rows rows) {
    const Row& first = *rows.front();
    const auto& name = first.node->className();
    const auto end = std::ranges::find_if(rows, [&](const Row* row) {
        return row->isScopeItem() != first.isScopeItem() || row->node->className() != name;
    });
    return static_cast<std::size_t>(end - rows.begin());
}

// Returns the ties.
std::vector<SortKeys::Tie> sortRun(Rows run, const SortOrder& order) {
    SortKeys keys;
    keys.reserve(run.size());
    for (const Row* const row : run) {
        if (const auto number = row->node->sortValue(order.column)) {
            keys.add(*number);
        } else {
            keys.add(cellOf(*row, order.column));
        }
    }
    const std::vector<const Row*> before(run.begin(), run.end());
    std::ranges::transform(keys.sorted(order.ascending), run.begin(), [&](auto place) { return before[place]; });
    return keys.ties();
}

void sortNaturally(Rows rows) {
    for (std::size_t begin = 0; begin < rows.size();) {
        const auto rest = rows.subspan(begin);
        const auto length = lengthOfRun(rest);
        sortRun(rest.first(length), SortOrder());
        begin += length;
    }
}

} // namespace

void sortRows(std::vector<const Row*>& rows, const std::optional<SortOrder>& order) {
    if (!order) {
        sortNaturally(rows);
        return;
    }
    for (const auto& tie : sortRun(rows, *order)) {
        sortNaturally(Rows(rows).subspan(tie.begin, tie.length));
    }
}

void sortByColumn(std::vector<const Row*>& rows, const SortOrder& order) {
    sortRun(rows, order);
}

} // namespace shell
