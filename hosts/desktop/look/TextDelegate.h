#pragma once

#include <QStyledItemDelegate>

namespace desktop {

// Draws the cells of trees and lists. A text that does not fit is elided, and shown whole in a tool tip.
class TextDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace desktop
