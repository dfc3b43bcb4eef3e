#include "shell/RowOrder.h"

#include "shell/SortKeys.h"

#include <algorithm>
#include <unordered_map>

namespace shell {
namespace {

using Rows = std::span<const Row*>;
using Places = std::span<const std::uint32_t>;

// The number of rows that are sorted together with the first one.
std::size_t lengthOfRun(Rows rows, const std::optional<SortOrder>& order) {
    if (order) {
        return rows.size();
    }
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

void sortRun(Rows run, const SortOrder& order, Places likely) {
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
}

// Puts rows into their natural order, which those that are equal in a column keep. Returns the likely positions for
// that order.
std::vector<std::uint32_t> sortNaturally(std::vector<const Row*>& rows, Places likely) {
    const std::vector<const Row*> before = rows;
    sortRows(rows, std::nullopt);
    std::unordered_map<const Row*, std::uint32_t> places;
    places.reserve(likely.size());
    for (std::uint32_t place = 0; place < rows.size() && !likely.empty(); ++place) {
        places.emplace(rows[place], place);
    }
    std::vector<std::uint32_t> next(likely.size());
    std::ranges::transform(likely, next.begin(), [&](std::uint32_t place) { return places.at(before[place]); });
    return next;
}

} // namespace

void sortRows(std::vector<const Row*>& rows, const std::optional<SortOrder>& order, Places likely) {
    std::vector<std::uint32_t> likelyNow;
    if (order && order->column != 0) {
        likelyNow = sortNaturally(rows, likely);
        likely = likelyNow;
    }
    for (std::size_t begin = 0; begin < rows.size();) {
        const auto rest = Rows(rows).subspan(begin);
        const auto length = lengthOfRun(rest, order);
        const auto places =
            likely.empty() ? std::vector<std::uint32_t>() : placesInRun(likely.subspan(begin, length), begin);
        sortRun(rest.first(length), order.value_or(SortOrder()), places);
        begin += length;
    }
}

} // namespace shell
