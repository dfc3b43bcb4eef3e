#pragma once

#include "bench/desktop/ManyRows.h"

#include <QAbstractTableModel>

namespace bench {

// The same rows as a mere table of strings: the cost of a list that can do nothing else.
class BareList final : public QAbstractTableModel {
public:
    BareList() { fill(); }

    // Makes all rows and their strings again.
    void refresh();

    [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

private:
    void fill();

    std::vector<std::array<QString, bench::columnCount>> rows_;
};

} // namespace bench
