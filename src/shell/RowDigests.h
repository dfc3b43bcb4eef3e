#pragma once

#include "shell/Row.h"
#include "shell/SortOrder.h"

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <vector>

namespace shell {

// A number for each row of a list that was sorted, made from all that its place depends on. Most refreshes bring rows
// that stand as before, and seeing that is much faster than sorting them. A changed row keeps its number once in 2^64
// times, and then stands where it was until the list is sorted again.
class RowDigests {
public:
    using Lists = std::initializer_list<const std::vector<Row>*>;

    // Notes all rows of a list, part after part, to be sorted in that order. True when the rows noted before had the
    // same ids in the same sequence and everything that they are sorted by, in the same order: they are sorted already.
    bool note(Lists parts, const std::optional<SortOrder>& order);
    // For a list of which not all rows are shown.
    void forget() { noted_ = false; }

private:
    std::vector<std::uint64_t> digests_;
    std::optional<SortOrder> order_;
    bool noted_ = false;
};

} // namespace shell
