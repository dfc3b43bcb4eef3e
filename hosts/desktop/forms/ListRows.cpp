#include "hosts/desktop/forms/ListRows.h"

#include "forms/ListView.h"
#include "hosts/desktop/forms/ShownText.h"
#include "hosts/desktop/look/Text.h"

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
    if (!index.isValid() || row >= list_.rows().size()) {
        return {};
    }
    const auto& [cells, id, hint] = list_.rows()[row];
    switch (role) {
    case Qt::DisplayRole:
        return column < cells.size() ? shownLine(cells[column]) : QString();
    case Qt::TextAlignmentRole:
        return alignmentOf(column);
    case Qt::ToolTipRole:
        return hint.empty() ? QVariant() : plainToolTip(shownLine(hint));
    case Qt::AccessibleDescriptionRole:
        return hint.empty() ? QVariant() : shownLine(hint);
    default:
        return {};
    }
}

QVariant ListRows::alignmentOf(std::size_t column) const {
    const bool number = column < list_.columns().size() && list_.columns()[column].number;
    return static_cast<int>((number ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
}

QVariant ListRows::headerData(int section, Qt::Orientation orientation, int role) const {
    const auto column = static_cast<std::size_t>(section);
    if (role == Qt::TextAlignmentRole && orientation == Qt::Horizontal) {
        return alignmentOf(column);
    }
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal || column >= list_.columns().size()) {
        return QAbstractTableModel::headerData(section, orientation, role);
    }
    return shownLine(list_.columns()[column].title);
}

} // namespace desktop
