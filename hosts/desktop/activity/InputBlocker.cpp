#include "hosts/desktop/activity/InputBlocker.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

#include <utility>

namespace desktop {

InputBlocker::InputBlocker(const QWidget& open, std::function<void()> onGiveUp)
    : open_(&open), onGiveUp_(std::move(onGiveUp)) {
    QApplication::instance()->installEventFilter(this);
}

InputBlocker::~InputBlocker() {
    QApplication::instance()->removeEventFilter(this);
}

bool InputBlocker::letsThrough(const QObject* receiver) const {
    const auto* const widget = qobject_cast<const QWidget*>(receiver);
    // Events of a native window are on their way to a widget and pass here again.
    return widget == nullptr || (open_ && (widget == open_ || open_->isAncestorOf(widget)));
}

bool InputBlocker::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::Shortcut:
        return true;
    case QEvent::Close:
        if (qobject_cast<QWidget*>(watched) != nullptr) {
            event->ignore();
            onGiveUp_();
            return true;
        }
        return false;
    case QEvent::KeyPress:
        if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape && qobject_cast<QWidget*>(watched) != nullptr) {
            onGiveUp_();
            return true;
        }
        return !letsThrough(watched);
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return !letsThrough(watched);
    default:
        return false;
    }
}

} // namespace desktop
