#pragma once

#include "hosts/desktop/activity/ActivityLog.h"

#include <QAbstractTableModel>

namespace desktop {

// The activity log for a Qt view.
class ActivityModel final : public QAbstractTableModel {
public:
    // The log outlives it, and has no other listener.
    explicit ActivityModel(ActivityLog& log);
    ~ActivityModel() override;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    ActivityLog& log_;
};

} // namespace desktop
