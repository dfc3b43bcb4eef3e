#pragma once

#include <QStyledItemDelegate>

namespace desktop {

// Draws the cells of trees and lists. A text that does not fit is elided, and shown whole in a tool tip. What is cut
// and waits to be pasted is faded and slanted.
class TextDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    // Of a model: whether the cell belongs to something that is cut.
    static constexpr int cutRole = Qt::UserRole + 1;

    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

// What a tool tip or a screen reader says about something that is cut, below its name.
QString cutText(const QString& name);

} // namespace desktop
