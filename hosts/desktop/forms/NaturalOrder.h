#pragma once

#include <QSortFilterProxyModel>

namespace desktop {

// Rows in the order that people expect, as everywhere else in the console.
class NaturalOrder final : public QSortFilterProxyModel {
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

protected:
    [[nodiscard]] bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;
};

} // namespace desktop
