#include "hosts/desktop/forms/FormScroll.h"

#include <QApplication>
#include <QEvent>
#include <QLayout>
#include <QScreen>
#include <QScrollBar>

namespace desktop {
namespace {

constexpr double partOfWidth = 0.95;
constexpr double partOfHeight = 0.88; // the rest is for the title bar and the panels of the desktop

// From the inside out.
void layOutWithin(QWidget& widget) {
    widget.ensurePolished();
    for (QObject* const child : widget.children()) {
        if (auto* const inner = qobject_cast<QWidget*>(child)) {
            layOutWithin(*inner);
        }
    }
    if (widget.layout() != nullptr) {
        widget.layout()->invalidate();
        widget.layout()->activate();
    }
}

} // namespace

FormScroll::FormScroll(QWidget* parent) : QScrollArea(parent) {
    setFrameShape(NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    viewport()->setAutoFillBackground(false);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* /*before*/, QWidget* now) {
        if (now != nullptr && widget() != nullptr && widget()->isAncestorOf(now)) {
            ensureWidgetVisible(now);
        }
    });
}

QWidget& FormScroll::renew() {
    available_ = window()->screen()->availableSize();
    auto* const surface = new QWidget;
    setWidget(surface);
    surface->setAutoFillBackground(false);
    return *surface;
}

QSize FormScroll::room() const {
    return {static_cast<int>(available_.width() * partOfWidth),
            static_cast<int>(available_.height() * partOfHeight) - heightBelow_};
}

void FormScroll::layOutAnew() {
    layOutWithin(*widget());
    updateGeometry();
}

QSize FormScroll::withinScreen(QSize size) const {
    ensurePolished();
    const bool scrolls = size.height() > room().height();
    return {std::min(size.width() + (scrolls ? verticalScrollBar()->sizeHint().width() : 0), room().width()),
            std::min(size.height(), room().height())};
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
