#pragma once

#include "wire/Text.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <vector>

namespace rules {

// The row that a list of the opener goes back to, and the name by which it is found if the row isn't known.
struct SavedChoice {
    std::optional<std::size_t> index;
    wire::WideString name;

    // Saves the record, wherever it is in the list now.
    template <class Record, class Listed>
    void become(const Record& record, const std::vector<Listed>& list) {
        const auto place = std::ranges::find(list, record.id, &Listed::id);
        index = place != list.end() ? std::optional(static_cast<std::size_t>(place - list.begin())) : std::nullopt;
        name = record.name;
    }
};

} // namespace rules
