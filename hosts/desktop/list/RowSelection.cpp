#include "hosts/desktop/list/RowSelection.h"

#include <algorithm>

namespace desktop {
namespace {

constexpr qsizetype mostRanges = 1'000; // Qt compares each range with each other one

} // namespace

// Each range spans whole rows, and no row is in two of them.
std::size_t RowSelection::count() const {
    std::size_t rows = 0;
    for (const QItemSelectionRange& range : selection_.selection()) {
        rows += static_cast<std::size_t>(range.height());
    }
    return rows;
}

std::vector<std::size_t> RowSelection::rows() const {
    std::vector<std::size_t> rows;
    rows.reserve(count());
    for (const QItemSelectionRange& range : selection_.selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            rows.push_back(static_cast<std::size_t>(row));
        }
    }
    std::ranges::sort(rows);
    return rows;
}

QModelIndex RowSelection::only() const {
    return count() == 1 ? model_.index(selection_.selection().front().top(), 0) : QModelIndex();
}

QModelIndex RowSelection::representative() const {
    const auto current = selection_.currentIndex();
    if (selection_.isSelected(current)) {
        return current;
    }
    return selection_.hasSelection() ? model_.index(selection_.selection().front().top(), 0) : QModelIndex();
}

void RowSelection::note() {
    noted_.clear();
    if (count() < 2) {
        return; // the console knows that one
    }
    for (const std::size_t row : rows()) {
        noted_.push_back(model_.idOf(model_.index(static_cast<int>(row), 0)));
    }
    std::ranges::sort(noted_);
}

void RowSelection::restore() {
    QItemSelection selection;
    const int last = model_.columnCount() - 1;
    int begin = -1;
    for (int row = 0; row <= model_.rowCount() && !noted_.empty(); ++row) {
        const auto index = model_.index(row, 0);
        const bool isNoted = index.isValid() && std::ranges::binary_search(noted_, model_.idOf(index));
        if (isNoted && begin < 0) {
            begin = row;
        } else if (!isNoted && begin >= 0) {
            selection.append(QItemSelectionRange(model_.index(begin, 0), model_.index(row - 1, last)));
            begin = -1;
        }
    }
    noted_.clear();
    if (!selection.empty() && selection.size() <= mostRanges) {
        selection_.select(selection, QItemSelectionModel::ClearAndSelect);
    }
}

} // namespace desktop
