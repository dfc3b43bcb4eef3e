#pragma once

#include "wire/Text.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

namespace rules {

// The row that a list of the opener goes back to, and the name by which it is found if the row isn't known.
struct SavedChoice {
    std::optional<std::size_t> index;
    wire::WideString name;

    // Saves the record with the id, wherever it is in the list now.
    template <class Element, class Id, class IdOf = std::identity>
    void become(const wire::WideString& newName, const std::vector<Element>& list, const Id& id, IdOf idOf = {}) {
        const auto place = std::ranges::find(list, id, idOf);
        index = place != list.end() ? std::optional(static_cast<std::size_t>(place - list.begin())) : std::nullopt;
        name = newName;
    }
};

} // namespace rules
