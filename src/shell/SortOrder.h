#pragma once

#include <cstdint>

namespace shell {

// Which column a list is sorted by.
struct SortOrder {
    std::int32_t column = 0;
    bool ascending = true;

    friend bool operator==(const SortOrder&, const SortOrder&) = default;
};

} // namespace shell
