#include "hosts/desktop/forms/TypedDateTimeEdit.h"

#include <QKeyEvent>

namespace desktop {

void TypedDateTimeEdit::keyPressEvent(QKeyEvent* event) {
    const QString text = event->text();
    const bool isLetter = text.size() == 1 && text.front().isLetterOrNumber();
    const bool isSeparator = text.size() == 1 && text.front().isPrint() && !isLetter;
    if (isSeparator && wentOn_) {
        wentOn_ = false;
        event->accept();
        return;
    }
    const int before = currentSectionIndex();
    QDateTimeEdit::keyPressEvent(event);
    wentOn_ = isLetter && currentSectionIndex() != before;
}

void TypedDateTimeEdit::focusInEvent(QFocusEvent* event) {
    wentOn_ = false;
    QDateTimeEdit::focusInEvent(event);
}

void TypedDateTimeEdit::mousePressEvent(QMouseEvent* event) {
    wentOn_ = false;
    QDateTimeEdit::mousePressEvent(event);
}

} // namespace desktop
