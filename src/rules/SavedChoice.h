#pragma once

#include "wire/Text.h"

#include <cstddef>
#include <optional>

namespace rules {

// The row that a list of an opener goes back to, and the name that it is found by when the row isn't known.
struct SavedChoice {
    std::optional<std::size_t> index;
    wire::WideString name;
};

} // namespace rules
