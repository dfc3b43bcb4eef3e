#pragma once

#include "protocol/estate/Region.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace regions {

// A region of a whole tree.
struct RegionInTree {
    protocol::RegionRecord record;
    std::optional<std::size_t> parent; // index of an earlier region; none at the top
};

// All regions as a tree, each after its parent, those of one parent in the given order. No region is lost whatever the
// server claims: one whose parent isn't listed, or of a ring of regions the first, is put at the top.
[[nodiscard]] std::vector<RegionInTree> inTreeOrder(std::vector<protocol::RegionRecord> all);

} // namespace regions
