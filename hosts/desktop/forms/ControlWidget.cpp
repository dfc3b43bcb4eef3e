#include "hosts/desktop/forms/ControlWidget.h"

#include "forms/ControlShape.h"
#include "forms/FormLabels.h"
#include "forms/FormWalk.h"
#include "hosts/desktop/forms/SheetTabs.h"
#include "hosts/desktop/forms/ShownText.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QScreen>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace desktop {
namespace {

bool isLetterWithAlt(const QKeyEvent& key) {
    return key.modifiers() == Qt::AltModifier && !key.text().isEmpty() && key.text().front().isPrint();
}

} // namespace

void ControlWidget::setUp(QWidget* widget, QWidget* field) {
    widget_ = widget;
    field_ = field != nullptr ? field : widget;
    widget_->installEventFilter(this);
    if (forms::shapeOf(control_).hasCaption) {
        addCaption();
    }
}

void ControlWidget::addCaption() {
    caption_ = new QLabel;
    caption_->setTextFormat(Qt::PlainText);
    // Kerned pairs such as "Ty" are measured close together but drawn apart when one letter is the access key, which
    // would cut off the last letter.
    QFont font;
    font.setKerning(false);
    caption_->setFont(font);
    caption_->setBuddy(widget_);
}

void ControlWidget::showLabels(const forms::FormLabels& labels) {
    showLabel(markedLine(labels.of(control_)));
}

void ControlWidget::showLabel(const QString& text) {
    if (caption_ != nullptr) {
        caption_->setText(text);
    }
}

void ControlWidget::mirror(forms::Aspect aspect) {
    mirrored([&] {
        switch (aspect) {
        case forms::Aspect::enabled:
            enable(control_.enabled());
            if (caption_ != nullptr) {
                caption_->setEnabled(control_.enabled());
            }
            break;
        case forms::Aspect::visible:
            show(field_);
            show(caption_);
            break;
        case forms::Aspect::label:
            for (QWidget* stop : tabStops()) {
                stop->setAccessibleName(shownLine(spokenName()));
            }
            break;
        case forms::Aspect::focus:
            if (widget_->window()->isVisible() && control_.reachable()) {
                SheetTabs::reveal(*widget_);
                widget_->window()->activateWindow();
                widget_->setFocus(Qt::TabFocusReason);
            }
            break;
        default:
            update(aspect);
        }
    });
}

// What has never been hidden is shown with the dialog, and not before.
void ControlWidget::show(QWidget* widget) const {
    if (widget != nullptr && widget->isHidden() == control_.visible()) {
        widget->setVisible(control_.visible());
    }
}

int ControlWidget::comfortableWidth() const {
    constexpr int characters = 32;
    constexpr double partOfScreen = 0.4; // with large letters
    return std::min(widget_->fontMetrics().averageCharWidth() * characters,
                    static_cast<int>(widget_->screen()->availableSize().width() * partOfScreen));
}

wire::WideString ControlWidget::spokenName() const {
    const forms::Control* named = &control_;
    while (named->label().empty() && named->beside() != nullptr) {
        named = named->beside();
    }
    return forms::readableLabel(named->label());
}

void ControlWidget::mirrorContent() {
    using enum forms::Aspect;
    for (const auto aspect : {label, columns, limits, items, text, problem, pages, selection, enabled}) {
        mirror(aspect);
    }
    refillNow();
}

void ControlWidget::mirrored(const std::function<void()>& change) {
    const bool before = std::exchange(mirroring_, true);
    change();
    mirroring_ = before;
}

void ControlWidget::refillSoon() {
    if (!std::exchange(stale_, true)) {
        QTimer::singleShot(0, this, [this] { refillNow(); });
    }
}

void ControlWidget::refillNow() {
    if (std::exchange(stale_, false)) {
        mirrored([this] { refill(); });
    }
}

bool ControlWidget::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && isLetterWithAlt(static_cast<const QKeyEvent&>(*event))) {
        event->ignore(); // no access key of the dialog; a box would take the letter for typed text
        return true;
    }
    if (event->type() == QEvent::Wheel && !widget_->hasFocus() && forms::shapeOf(control_).place == forms::Place::row) {
        event->ignore(); // the wheel scrolls the dialog and must not change the boxes that it passes
        return true;
    }
    if (event->type() == QEvent::Show && watched == widget_) {
        // The list only has its size now, and can scroll to its selected row.
        QTimer::singleShot(0, this, [this] { mirror(forms::Aspect::selection); });
    }
    if (event->type() == QEvent::FocusOut && watched == widget_) {
        const auto reason = static_cast<const QFocusEvent*>(event)->reason();
        const bool staysInDialog =
            reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason && reason != Qt::MenuBarFocusReason;
        if (staysInDialog) {
            // The handler may show a box, which must not happen in the middle of a change of focus.
            QTimer::singleShot(0, this, [this] { control_.userLeft(); });
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace desktop
