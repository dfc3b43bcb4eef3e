#include "shell/ListDiff.h"

#include <algorithm>
#include <unordered_set>

namespace shell {
namespace {

using Ids = std::span<const std::intptr_t>;
using IdSet = std::unordered_set<std::intptr_t>;

// The runs of a list's items that are not in the other list, in order; none when there are too many.
std::optional<std::vector<ListStep>> runsOutside(Ids list, const IdSet& other, ListStep::Kind kind) {
    std::vector<ListStep> runs;
    for (std::size_t i = 0; i < list.size(); ++i) {
        if (other.contains(list[i])) {
            continue;
        }
        if (!runs.empty() && runs.back().first + runs.back().count == i) {
            ++runs.back().count;
        } else if (runs.size() == mostSteps) {
            return std::nullopt;
        } else {
            runs.push_back({kind, i, 1});
        }
    }
    return runs;
}

bool commonInSameOrder(Ids before, const IdSet& inBefore, Ids after, const IdSet& inAfter) {
    auto next = before.begin();
    for (const auto id : after) {
        if (!inBefore.contains(id)) {
            continue;
        }
        next = std::find_if(next, before.end(), [&](auto old) { return inAfter.contains(old); });
        if (next == before.end() || *next != id) {
            return false;
        }
        ++next;
    }
    return true;
}

// The steps between lists that have no common beginning or end.
std::optional<std::vector<ListStep>> stepsInside(Ids before, Ids after) {
    if (before.empty() && after.empty()) {
        return std::vector<ListStep>{};
    }
    if (before.empty() || after.empty()) {
        return before.empty() ? std::vector<ListStep>{{ListStep::Kind::insert, 0, after.size()}}
                              : std::vector<ListStep>{{ListStep::Kind::remove, 0, before.size()}};
    }
    const IdSet inBefore(before.begin(), before.end());
    const IdSet inAfter(after.begin(), after.end());
    auto steps = runsOutside(before, inAfter, ListStep::Kind::remove);
    const auto inserts = runsOutside(after, inBefore, ListStep::Kind::insert);
    if (!steps || !inserts || !commonInSameOrder(before, inBefore, after, inAfter)) {
        return std::nullopt;
    }
    std::ranges::reverse(*steps); // from the end, so that the earlier positions stay valid
    steps->insert(steps->end(), inserts->begin(), inserts->end());
    return steps;
}

} // namespace

std::optional<std::vector<ListStep>> listSteps(Ids before, Ids after) {
    const auto firstDifference = std::ranges::mismatch(before, after).in1;
    const auto same = static_cast<std::size_t>(firstDifference - before.begin());
    before = before.subspan(same);
    after = after.subspan(same);
    const auto lastDifference = std::mismatch(before.rbegin(), before.rend(), after.rbegin(), after.rend()).first;
    const auto sameAtEnd = static_cast<std::size_t>(lastDifference - before.rbegin());
    auto steps = stepsInside(before.first(before.size() - sameAtEnd), after.first(after.size() - sameAtEnd));
    if (steps) {
        std::ranges::for_each(*steps, [same](ListStep& step) { step.first += same; });
    }
    return steps;
}

} // namespace shell
