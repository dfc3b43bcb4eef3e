#include "forms/ListView.h"

#include "forms/ControlVisitor.h"

namespace forms {

ListView::ListView(Container& container, std::u16string_view label) : Control(container, label) {}

void ListView::accept(ControlVisitor& visitor) {
    visitor.visit(*this);
}

void ListView::setColumns(std::vector<ListColumn> columns) {
    columns_ = std::move(columns);
    changed(Aspect::columns);
}

void ListView::setRows(std::vector<ListRow> rows) {
    rows_ = std::move(rows);
    selection_.reset();
    changed(Aspect::items);
}

void ListView::addRow(ListRow row) {
    rows_.push_back(std::move(row));
    changed(Aspect::items);
}

void ListView::removeRow(std::size_t row) {
    rows_.at(row);
    rows_.erase(rows_.begin() + static_cast<std::ptrdiff_t>(row));
    if (selection_ == row) {
        selection_.reset();
    } else if (selection_ > row) {
        --*selection_;
    }
    changed(Aspect::items);
}

void ListView::setCell(std::size_t row, std::size_t column, wire::WideString text) {
    auto& cells = rows_.at(row).cells;
    if (cells.size() <= column) {
        cells.resize(column + 1);
    }
    cells[column] = std::move(text);
    changed(Aspect::items);
}

const ListRow* ListView::selectedRow() const {
    return selection_ ? &rows_[*selection_] : nullptr;
}

void ListView::select(std::optional<std::size_t> row) {
    if (row && *row >= rows_.size()) {
        row.reset();
    }
    if (selection_ != row) {
        selection_ = row;
        changed(Aspect::selection);
    }
}

bool ListView::userSelected(std::optional<std::size_t> row) {
    if (!takesInput() || (row && *row >= rows_.size())) {
        return false;
    }
    selection_ = row;
    run(onSelect);
    return true;
}

bool ListView::userDoubleClicked(std::size_t row) {
    if (!userSelected(row)) {
        return false;
    }
    run(onDoubleClick);
    return true;
}

bool ListView::userChoseFromRowMenu(std::size_t row, std::size_t entry) {
    if (entry >= rowMenu_.size() || !userSelected(row)) {
        return false;
    }
    run([this, entry] {
        if (onRowMenu) {
            onRowMenu(entry);
        }
    });
    return true;
}

} // namespace forms
