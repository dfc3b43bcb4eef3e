#include "shell/RowOrder.h"

#include "shell/NaturalOrder.h"

#include <algorithm>
#include <utility>

namespace shell {
namespace {

using Rows = std::vector<const Row*>;
using Keyed = std::pair<wire::WideString, const Row*>;

void sortRun(Rows::iterator begin, Rows::iterator end, const SortOrder& order) {
    std::vector<Keyed> keyed;
    keyed.reserve(static_cast<std::size_t>(end - begin));
    std::transform(begin, end, std::back_inserter(keyed),
                   [&](const Row* row) { return Keyed(naturalKey(cellOf(*row, order.column)), row); });
    const auto inOrder = [&](const Keyed& a, const Keyed& b) {
        return order.ascending ? a.first < b.first : b.first < a.first;
    };
    const auto notInOrder = [&](const Keyed& a, const Keyed& b) { return !inOrder(b, a); };
    if (std::ranges::adjacent_find(keyed, notInOrder) == keyed.end()) {
        std::ranges::reverse(keyed); // as lists come that are handed out from their last record to their first
    } else if (!std::ranges::is_sorted(keyed, inOrder)) {
        std::ranges::stable_sort(keyed, inOrder);
    }
    std::ranges::transform(keyed, begin, &Keyed::second);
}

bool sameKind(const Row& a, const Row& b) {
    return a.isScopeItem() == b.isScopeItem() && a.node->className() == b.node->className();
}

} // namespace

void sortRows(std::vector<const Row*>& rows, const std::optional<SortOrder>& order) {
    if (order) {
        sortRun(rows.begin(), rows.end(), *order);
        return;
    }
    for (auto begin = rows.begin(); begin != rows.end();) {
        const auto end = std::find_if(begin, rows.end(), [&](const Row* row) { return !sameKind(**begin, *row); });
        sortRun(begin, end, {});
        begin = end;
    }
}

} // namespace shell
