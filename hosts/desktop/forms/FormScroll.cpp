#include "hosts/desktop/forms/FormScroll.h"

#include <QEvent>
#include <QScreen>
#include <QScrollBar>

namespace desktop {
namespace {

constexpr double partOfScreen = 0.85;

} // namespace

FormScroll::FormScroll(QWidget* parent) : QScrollArea(parent) {
    setFrameShape(NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    viewport()->setAutoFillBackground(false);
    auto* const surface = new QWidget;
    setWidget(surface);
    surface->setAutoFillBackground(false);
}

QSize FormScroll::withinScreen(QSize size) const {
    ensurePolished();
    const QSize room = screen()->availableSize() * partOfScreen;
    const bool scrolls = size.height() > room.height();
    return {std::min(size.width() + (scrolls ? verticalScrollBar()->sizeHint().width() : 0), room.width()),
            std::min(size.height(), room.height())};
}

QSize FormScroll::sizeHint() const {
    return withinScreen(widget()->sizeHint());
}

QSize FormScroll::minimumSizeHint() const {
    return withinScreen(widget()->minimumSizeHint());
}

bool FormScroll::eventFilter(QObject* watched, QEvent* event) {
    if (watched == widget() && event->type() == QEvent::LayoutRequest) {
        updateGeometry();
    }
    return QScrollArea::eventFilter(watched, event);
}

} // namespace desktop
