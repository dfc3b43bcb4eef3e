#pragma once

#include "wire/Text.h"

#include <cstddef>
#include <functional>
#include <vector>

namespace shell {

// Columns and rows to be written out; cells are read one after the other.
struct Table {
    std::vector<wire::WideString> columns;
    std::size_t rowCount = 0;
    // The view is valid until the next cell is read.
    std::function<wire::WideStringView(std::size_t row, std::size_t column)> cell;
};

} // namespace shell
