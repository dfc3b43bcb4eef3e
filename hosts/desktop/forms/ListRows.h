#pragma once

#include <QAbstractTableModel>

#include <cstddef>

namespace forms {
class ListView;
} // namespace forms

namespace desktop {

// The rows and columns of a list of a form, in the form's order.
class ListRows final : public QAbstractTableModel {
public:
    explicit ListRows(const forms::ListView& list, QObject* parent);

    // Takes over the current content of the list.
    void refresh();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    [[nodiscard]] QVariant alignmentOf(std::size_t column) const;

    const forms::ListView& list_;
    int rows_ = 0;
    int columns_ = 0;
};

} // namespace desktop
