#include "hosts/desktop/look/TextDelegate.h"

#include "hosts/desktop/look/Text.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QLineEdit>
#include <QToolTip>

namespace desktop {

bool TextDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                             const QModelIndex& index) {
    if (event == nullptr || view == nullptr || event->type() != QEvent::ToolTip) {
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    }
    const QString whole = index.data(Qt::ToolTipRole).toString();
    const bool isCut =
        whole != index.data(Qt::DisplayRole).toString() || sizeHint(option, index).width() > option.rect.width();
    if (whole.isEmpty() || !isCut) {
        QToolTip::hideText();
    } else {
        QToolTip::showText(event->globalPos(), plainToolTip(whole), view->viewport(), option.rect);
    }
    return true;
}

void TextDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    if (index.data(cutRole).toBool()) {
        option->state &= ~QStyle::State_Enabled; // fades the icon
        option->palette.setBrush(QPalette::Disabled, QPalette::Text, option->palette.placeholderText());
        option->font.setItalic(true);
    }
}

QWidget* TextDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const {
    QWidget* const editor = QStyledItemDelegate::createEditor(parent, option, index);
    if (auto* const line = qobject_cast<QLineEdit*>(editor)) {
        line->setAccessibleName(QStringLiteral("New name"));
    }
    return editor;
}

QString cutText(const QString& name) {
    const QString said = QStringLiteral("Cut: paste it where it belongs, or press Esc");
    return name.isEmpty() ? said : name + QLatin1Char('\n') + said;
}

} // namespace desktop
