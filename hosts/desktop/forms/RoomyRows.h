#pragma once

#include <QStyledItemDelegate>

namespace desktop {

// Draws the rows of a list with some room above and below their texts.
class RoomyRows final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace desktop
