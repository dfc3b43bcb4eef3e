#include "shell/RowOrder.h"

#include "shell/SortKeys.h"

#include <algorithm>
#include <numeric>

namespace shell {
namespace {

using Rows = std::span<const Row*>;
using Places = std::span<const std::uint32_t>;

// The number of rows that are sorted together with the first one.
std::size_t lengthOfRun(Rows rows) {
    const Row& first = *rows.front();
    const auto& name = first.node->className();
    const auto end = std::ranges::find_if(rows, [&](const Row* row) {
        return row->isScopeItem() != first.isScopeItem() || row->node->className() != name;
    });
    return static_cast<std::size_t>(end - rows.begin());
}

// The positions of a run's rows, counted from its start; empty when other rows are among them.
std::vector<std::uint32_t> placesInRun(Places likely, std::size_t begin) {
    std::vector<std::uint32_t> places(likely.begin(), likely.end());
    for (std::uint32_t& place : places) {
        if (place < begin || place - begin >= places.size()) {
            return {};
        }
        place -= static_cast<std::uint32_t>(begin);
    }
    return places;
}

// Returns the ties.
std::vector<SortKeys::Tie> sortRun(Rows run, const SortOrder& order, Places likely) {
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
    std::ranges::transform(keys.sorted(order.ascending, likely), run.begin(),
                           [&](auto place) { return before[place]; });
    return keys.ties();
}

void sortNaturally(Rows rows, Places likely) {
    for (std::size_t begin = 0; begin < rows.size();) {
        const auto rest = rows.subspan(begin);
        const auto length = lengthOfRun(rest);
        const auto places =
            likely.empty() ? std::vector<std::uint32_t>() : placesInRun(likely.subspan(begin, length), begin);
        sortRun(rest.first(length), SortOrder(), places);
        begin += length;
    }
}

// Most ties are in order already.
void sortTie(Rows rows) {
    std::vector<std::uint32_t> asTheyAre(rows.size());
    std::iota(asTheyAre.begin(), asTheyAre.end(), std::uint32_t{0});
    sortNaturally(rows, asTheyAre);
}

} // namespace

void sortRows(std::vector<const Row*>& rows, const std::optional<SortOrder>& order, Places likely) {
    if (!order) {
        sortNaturally(rows, likely);
        return;
    }
    for (const auto& tie : sortRun(rows, *order, likely)) {
        sortTie(Rows(rows).subspan(tie.begin, tie.length));
    }
}

void sortByColumn(std::vector<const Row*>& rows, const SortOrder& order) {
    sortRun(rows, order, {});
}

} // namespace shell
