#pragma once

#include "hosts/desktop/list/ListModel.h"

#include <QItemSelectionModel>

#include <cstddef>
#include <vector>

namespace desktop {

// The rows that are selected in the list, one or up to a hundred thousand.
class RowSelection {
public:
    // Both outlive it.
    RowSelection(ListModel& model, QItemSelectionModel& selection) : model_(model), selection_(selection) {}

    [[nodiscard]] std::size_t count() const;
    // Their positions, from top to bottom.
    [[nodiscard]] std::vector<std::size_t> rows() const;
    // The only selected row, in its first column; invalid for none and for several.
    [[nodiscard]] QModelIndex only() const;

    // The row with the focus if it is selected, else the first selected one; invalid for none.
    [[nodiscard]] QModelIndex representative() const;

    // Called before and after the rows are reset, which ends the selection of a Qt view: several selected rows stay
    // selected wherever they are then.
    void note();
    void restore();

private:
    ListModel& model_;
    QItemSelectionModel& selection_;
    std::vector<console::ResultId> noted_; // sorted
};

} // namespace desktop
