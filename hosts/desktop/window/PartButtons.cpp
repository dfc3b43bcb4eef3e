#include "hosts/desktop/window/PartButtons.h"

#include "hosts/desktop/look/Text.h"

#include <QLocale>
#include <QToolButton>

#include <algorithm>

namespace desktop {

PartButtons::PartButtons(QWidget* parent) : QWidget(parent) {
    setAccessibleName(QStringLiteral("Parts of the list"));
}

void PartButtons::setParts(const std::vector<shell::ListPart>& parts, const shell::ResultPane& pane) {
    parts_ = parts;
    setCount(parts.size());
    for (std::size_t place = 0; place < parts.size(); ++place) {
        const shell::ListPart& part = parts[place];
        QToolButton& button = *buttons_[place];
        const QString text =
            QLocale().toString(static_cast<qlonglong>(part.count)) + QLatin1Char(' ') + oneLine(part.text);
        const QString help = QStringLiteral("To see only these rows, or all again: %1").arg(oneLine(part.filter));
        button.setText(QString(text).replace(QLatin1Char('&'), QStringLiteral("&&")));
        button.setAccessibleName(text);
        button.setAccessibleDescription(help);
        button.setToolTip(plainToolTip(help));
        button.setChecked(shell::asksFor(pane.filterText(), part, pane.titles()));
    }
    updateGeometry();
    arrange();
}

// Buttons that stay keep the focus.
void PartButtons::setCount(std::size_t count) {
    while (buttons_.size() > count) {
        delete buttons_.back();
        buttons_.pop_back();
    }
    while (buttons_.size() < count) {
        auto* const button = new QToolButton(this);
        button->setAutoRaise(true);
        button->setCheckable(true);
        button->setFocusPolicy(Qt::StrongFocus);
        connect(button, &QToolButton::clicked, this, [this, place = buttons_.size()] {
            if (onPressed) {
                onPressed(parts_[place]);
            }
        });
        buttons_.push_back(button);
    }
}

void PartButtons::arrange() {
    int left = 0;
    for (QToolButton* const button : buttons_) {
        const int end = left + button->sizeHint().width();
        button->setGeometry(left, 0, button->sizeHint().width(), height());
        button->setVisible(end <= width());
        left = end;
    }
}

QSize PartButtons::sizeHint() const {
    QSize size = minimumSizeHint();
    for (const QToolButton* const button : buttons_) {
        size.setWidth(size.width() + button->sizeHint().width());
        size.setHeight(std::max(size.height(), button->sizeHint().height()));
    }
    return size;
}

// A status bar of any height fits the window; a list without parts takes no room.
QSize PartButtons::minimumSizeHint() const {
    return {0, fontMetrics().height() + 4};
}

void PartButtons::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    arrange();
}

} // namespace desktop
