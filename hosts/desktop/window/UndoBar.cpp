#include "hosts/desktop/window/UndoBar.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <chrono>
#include <utility>

namespace desktop {
namespace {

constexpr std::chrono::seconds timeToUndo{10};

} // namespace

UndoBar::UndoBar(QWidget* parent)
    : QFrame(parent), label_(new QLabel(this)), button_(new QPushButton(QStringLiteral("&Undo"), this)) {
    setAccessibleName(QStringLiteral("Done"));
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    label_->setTextFormat(Qt::PlainText);
    label_->setWordWrap(true);
    label_->setForegroundRole(QPalette::ToolTipText);
    connect(button_, &QPushButton::clicked, this, &UndoBar::undo);
    timer_.setSingleShot(true);
    timer_.setInterval(timeToUndo);
    timer_.callOnTimeout([this] { timeOut(); });
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 4, 8, 4);
    layout->addWidget(label_, 1);
    layout->addWidget(button_);
    hide();
}

void UndoBar::offer(const QString& text, std::function<void()> undo) {
    label_->setText(text);
    setAccessibleDescription(text);
    undo_ = std::move(undo);
    show();
    timer_.start();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
    if (onChange) {
        onChange();
    }
}

void UndoBar::withdraw() {
    timer_.stop();
    hide();
    if (std::exchange(undo_, nullptr) && onChange) {
        onChange();
    }
}

void UndoBar::undo() {
    const auto undo = undo_;
    withdraw();
    if (undo) {
        undo();
    }
}

QString UndoBar::said() const {
    return label_->text();
}

// Not while the user is about to press the button.
void UndoBar::timeOut() {
    if (underMouse() || button_->hasFocus()) {
        timer_.start();
    } else {
        withdraw();
    }
}

} // namespace desktop
