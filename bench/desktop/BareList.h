#pragma once

#include "bench/desktop/ManyRows.h"

#include <QAbstractTableModel>

namespace bench {

// The same rows as nothing but a table of strings: what a list costs that can nothing else.
class BareList final : public QAbstractTableModel {
public:
    BareList() { fill(); }

    // All rows and their strings anew.
    void refresh();

    int rowCount(const QModelIndex& parent) const override;
    int columnCount(const QModelIndex& parent) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    void fill();

    std::vector<std::array<QString, bench::columnCount>> rows_;
};

} // namespace bench
