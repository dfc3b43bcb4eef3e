#pragma once

#include "hosts/ctl/Options.h"
#include "shell/Row.h"

#include <span>
#include <vector>

namespace ctl {

// What of a list the user wants to see: which columns, which rows, and in which order.
struct ListChoice {
    struct Key {
        wire::WideString column;
        bool descending = false;
    };

    std::vector<wire::WideString> columns; // all if empty
    std::vector<Key> sort;                 // the most important one first
    wire::WideString filter;               // as described in docs/filter.md

    [[nodiscard]] bool empty() const { return columns.empty() && sort.empty() && filter.empty(); }
};

// From --columns, --sort and --filter. Throws Failure (usage) for a name that is missing between commas.
ListChoice parseListChoice(const Options& options);

// The column that a name refers to. Throws Failure (refused), listing the titles, when there is none.
std::int32_t columnOrRefused(const wire::WideString& name, std::span<const wire::WideString> titles);

// Sorts the rows by the keys whose columns the list has; rows that are equal in all of them keep their order.
void sortBy(std::vector<const shell::Row*>& rows, const ListChoice& choice, std::span<const wire::WideString> titles);

} // namespace ctl
