#pragma once

#include "wire/Text.h"

#include <cstddef>
#include <functional>
#include <vector>

namespace shell {

// Something with columns and rows that can be written out; cells are asked for one after the other.
struct Table {
    std::vector<wire::WideString> columns;
    std::size_t rowCount = 0;
    // The view is used before the next cell is asked for.
    std::function<wire::WideStringView(std::size_t row, std::size_t column)> cell;
};

} // namespace shell
