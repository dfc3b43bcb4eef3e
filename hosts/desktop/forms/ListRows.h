#pragma once

#include <QAbstractTableModel>

namespace console {
class ListView;
}

namespace desktop {

// The rows and columns of a list of a form, in the form's order.
class ListRows final : public QAbstractTableModel {
public:
    explicit ListRows(const console::ListView& list, QObject* parent);

    // Takes over what the list holds now.
    void refresh();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    const console::ListView& list_;
    int rows_ = 0;
    int columns_ = 0;
};

} // namespace desktop
