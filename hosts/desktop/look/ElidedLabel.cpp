#include "hosts/desktop/look/ElidedLabel.h"

#include "hosts/desktop/look/Text.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace desktop {

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
}

void ElidedLabel::setLine(const QString& text) {
    if (text != this->text()) {
        setText(text);
        updateGeometry();
    }
}

QSize ElidedLabel::sizeHint() const {
    return {fontMetrics().horizontalAdvance(text()) + 2 * margin(), minimumSizeHint().height()};
}

QSize ElidedLabel::minimumSizeHint() const {
    return {0, fontMetrics().height() + 2 * margin()};
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setFont(font());
    const QRect room = contentsRect();
    style()->drawItemText(&painter, room, static_cast<int>(alignment()), palette(), isEnabled(),
                          fontMetrics().elidedText(text(), Qt::ElideRight, room.width()), foregroundRole());
}

bool ElidedLabel::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip && fontMetrics().horizontalAdvance(text()) > contentsRect().width()) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), plainToolTip(text()), this);
        return true;
    }
    return QLabel::event(event);
}

} // namespace desktop
