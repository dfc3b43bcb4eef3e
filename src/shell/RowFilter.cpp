#include "shell/RowFilter.h"

#include "shell/FoldedText.h"
#include "shell/NaturalOrder.h"

#include <algorithm>
#include <limits>

namespace shell {
namespace {

// The cells of a row of the result pane.
class CellsOfRow final : public FilteredCells {
public:
    explicit CellsOfRow(const Row& row) : row_(row) {}

    [[nodiscard]] wire::WideStringView text(std::int32_t column) const override { return cellOf(row_, column); }
    [[nodiscard]] std::optional<std::int64_t> number(std::int32_t column) const override {
        return row_.node->sortValue(column);
    }
    [[nodiscard]] wire::WideStringView state() const override {
        const auto state = row_.node->rowState();
        state_ = state ? console::describe(*state) : wire::WideString();
        return state_;
    }

private:
    const Row& row_;
    mutable wire::WideString state_;
};

// Whether something passes that is below, within or above what the term names.
bool passes(FilterTest test, bool below, bool above) {
    switch (test) {
    case FilterTest::less:
        return below;
    case FilterTest::lessOrEqual:
        return !above;
    case FilterTest::greater:
        return above;
    case FilterTest::greaterOrEqual:
        return !below;
    default:
        return !below && !above;
    }
}

} // namespace

std::vector<wire::WideString> filterTitles(std::span<const wire::WideString> titles) {
    std::vector<wire::WideString> all(titles.begin(), titles.end());
    all.emplace_back(u"State");
    return all;
}

RowFilter::RowFilter(wire::WideStringView text, std::span<const wire::WideString> titles)
    : query_(parseFilter(text, filterTitles(titles))), columns_(static_cast<std::int32_t>(titles.size())) {}

bool RowFilter::matches(const FilteredCells& cells) const {
    return std::ranges::all_of(query_.terms,
                               [&](const FilterTerm& term) { return meets(cells, term) != term.negated; });
}

bool RowFilter::matches(const Row& row) const {
    return empty() || matches(CellsOfRow(row));
}

bool RowFilter::meets(const FilteredCells& cells, const FilterTerm& term) const {
    if (!term.column) {
        for (std::int32_t column = 0; column < columns_; ++column) {
            if (containsFolded(cells.text(column), term.text)) {
                return true;
            }
        }
        return containsFolded(cells.state(), term.text);
    }
    switch (term.test) {
    case FilterTest::contains:
        return containsFolded(textOf(cells, *term.column), term.text);
    case FilterTest::empty:
        return textOf(cells, *term.column).empty();
    default:
        return compares(cells, term);
    }
}

wire::WideStringView RowFilter::textOf(const FilteredCells& cells, std::int32_t column) const {
    return column == columns_ ? cells.state() : cells.text(column);
}

// A cell without a value meets no comparison: a printer that was never seen was not seen before last year.
bool RowFilter::compares(const FilteredCells& cells, const FilterTerm& term) const {
    const bool hasNumber = term.numbers && *term.column != columns_;
    if (const auto number = hasNumber ? cells.number(*term.column) : std::nullopt) {
        constexpr auto noDate = std::numeric_limits<std::int64_t>::min(); // see wire::wireDateOrder
        return *number != noDate && passes(term.test, *number<term.numbers->first, *number> term.numbers->last);
    }
    const auto text = textOf(cells, *term.column);
    if (text.empty()) {
        return false;
    }
    key_.clear();
    appendNaturalKey(key_, text);
    const int compared = key_.compare(term.text);
    return passes(term.test, compared<0, compared> 0);
}

} // namespace shell
