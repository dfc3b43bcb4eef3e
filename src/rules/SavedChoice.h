#pragma once

#include "wire/Text.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

namespace rules {

// The row that a list of an opener goes back to, and the name that it is found by when the row isn't known.
struct SavedChoice {
    std::optional<std::size_t> index;
    wire::WideString name;

    // Becomes the record with the id, wherever the list has it now.
    template <class Element, class Id, class IdOf = std::identity>
    void become(const wire::WideString& newName, const std::vector<Element>& list, const Id& id, IdOf idOf = {}) {
        const auto place = std::ranges::find(list, id, idOf);
        index = place != list.end() ? std::optional(static_cast<std::size_t>(place - list.begin())) : std::nullopt;
        name = newName;
    }
};

} // namespace rules
