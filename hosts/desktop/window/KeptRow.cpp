#include "hosts/desktop/window/KeptRow.h"

#include <algorithm>

namespace desktop {

void KeptRow::note(const shell::Shell& console) {
    const auto& pane = console.pane();
    selection_ = console.selection();
    place_ = pane.indexOf(selection_.row).value_or(0);
    ids_.clear();
    for (std::size_t row = 0; row < pane.rowCount(); ++row) {
        ids_.push_back(pane.row(row).id);
    }
    std::ranges::sort(ids_);
}

bool KeptRow::select(shell::Shell& console) const {
    const auto now = console.selection();
    if (now.scope != selection_.scope || now.row != 0) {
        return false;
    }
    const auto row = wanted(console.pane());
    return row != 0 && console.selectRow(row);
}

console::ResultId KeptRow::wanted(const shell::ResultPane& pane) const {
    console::ResultId added = 0;
    std::size_t count = 0;
    for (std::size_t row = 0; row < pane.rowCount(); ++row) {
        if (!std::ranges::binary_search(ids_, pane.row(row).id)) {
            added = pane.row(row).id;
            ++count;
        }
    }
    if (count == 1) {
        return added;
    }
    if (selection_.row == 0 || pane.rowCount() == 0) {
        return 0;
    }
    return pane.indexOf(selection_.row) ? selection_.row : pane.row(std::min(place_, pane.rowCount() - 1)).id;
}

} // namespace desktop
