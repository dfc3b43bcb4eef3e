#include "hosts/desktop/forms/ListRows.h"

#include "forms/ListView.h"
#include "hosts/desktop/forms/ShownText.h"

namespace desktop {

ListRows::ListRows(const forms::ListView& list, QObject* parent) : QAbstractTableModel(parent), list_(list) {}

void ListRows::refresh() {
    beginResetModel();
    rows_ = static_cast<int>(list_.rows().size());
    columns_ = static_cast<int>(list_.columns().size());
    endResetModel();
}

int ListRows::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

int ListRows::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columns_;
}

QVariant ListRows::data(const QModelIndex& index, int role) const {
    const auto row = static_cast<std::size_t>(index.row());
    const auto column = static_cast<std::size_t>(index.column());
    // The list may have changed since the last refresh.
    if (role != Qt::DisplayRole || !index.isValid() || row >= list_.rows().size()) {
        return {};
    }
    const auto& cells = list_.rows()[row].cells;
    return column < cells.size() ? shownLine(cells[column]) : QString();
}

QVariant ListRows::headerData(int section, Qt::Orientation orientation, int role) const {
    const auto column = static_cast<std::size_t>(section);
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal || column >= list_.columns().size()) {
        return QAbstractTableModel::headerData(section, orientation, role);
    }
    return shownLine(list_.columns()[column].title);
}

} // namespace desktop
