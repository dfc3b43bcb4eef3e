#include "bench/desktop/BareList.h"

namespace bench {

void BareList::fill() {
    rows_.resize(bench::rowCount);
    for (std::size_t row = 0; row < bench::rowCount; ++row) {
        for (std::size_t column = 0; column < bench::columnCount; ++column) {
            rows_[row][column] = QString::fromStdU16String(cellText(row, column));
        }
    }
}

void BareList::refresh() {
    beginResetModel();
    for (auto& row : rows_) {
        for (QString& text : row) {
            text = QString(text.constData(), text.size());
        }
    }
    endResetModel();
}

int BareList::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int BareList::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(bench::columnCount);
}

QVariant BareList::data(const QModelIndex& index, int role) const {
    return role == Qt::DisplayRole
               ? QVariant(rows_[static_cast<std::size_t>(index.row())][static_cast<std::size_t>(index.column())])
               : QVariant();
}

} // namespace bench
