#pragma once

#include "shell/FilterQuery.h"
#include "shell/Row.h"

namespace shell {

// What a filter asks of a row.
class FilteredCells {
public:
    FilteredCells() = default;
    FilteredCells(const FilteredCells&) = delete;
    FilteredCells& operator=(const FilteredCells&) = delete;
    virtual ~FilteredCells() = default;

    // Valid until the next one is asked for.
    [[nodiscard]] virtual wire::WideStringView text(std::int32_t column) const = 0;
    // The number that the column sorts by; none if it sorts by its text.
    [[nodiscard]] virtual std::optional<std::int64_t> number(std::int32_t column) const = 0;
    // The state of the row in words, as if it were one more column. Valid until it is asked for again.
    [[nodiscard]] virtual wire::WideStringView state() const { return {}; }
};

// The titles that a filter may name: those of the columns, and "State" for the state of a row.
[[nodiscard]] std::vector<wire::WideString> filterTitles(std::span<const wire::WideString> titles);

// The text that the user typed to see only some rows of a list, as docs/filter.md describes it. Read once, and then
// asked for each row.
class RowFilter {
public:
    RowFilter() = default;
    RowFilter(wire::WideStringView text, std::span<const wire::WideString> titles);

    // An empty filter lets everything pass.
    [[nodiscard]] bool empty() const { return query_.terms.empty(); }
    [[nodiscard]] const std::vector<FilterProblem>& problems() const { return query_.problems; }
    [[nodiscard]] bool matches(const FilteredCells& cells) const;
    [[nodiscard]] bool matches(const Row& row) const;

private:
    [[nodiscard]] bool meets(const FilteredCells& cells, const FilterTerm& term) const;
    [[nodiscard]] wire::WideStringView textOf(const FilteredCells& cells, std::int32_t column) const;
    [[nodiscard]] bool compares(const FilteredCells& cells, const FilterTerm& term) const;

    FilterQuery query_;
    std::int32_t columns_ = 0;     // without the state, which comes after them
    mutable wire::WideString key_; // of the cell being compared; kept so that no cell allocates
};

} // namespace shell
