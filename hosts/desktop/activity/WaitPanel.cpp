#include "hosts/desktop/activity/WaitPanel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

#include <algorithm>

namespace desktop {

WaitPanel::WaitPanel(QWidget& window)
    : QFrame(&window), label_(new QLabel(this)), cancel_(new QPushButton(QStringLiteral("Cancel"), this)) {
    setAccessibleName(QStringLiteral("Waiting for the server"));
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    label_->setTextFormat(Qt::PlainText);
    label_->setForegroundRole(QPalette::ToolTipText);
    auto* const progress = new QProgressBar(this);
    progress->setRange(0, 0);
    progress->setTextVisible(false);
    progress->setFixedWidth(90);
    progress->setAccessibleName(QStringLiteral("Working"));
    cancel_->setFocusPolicy(Qt::NoFocus); // the focus stays where it was; Escape does the same
    cancel_->setToolTip(QStringLiteral("Cancel this command (Esc)"));
    connect(cancel_, &QPushButton::clicked, this, [this] {
        cancel_->setEnabled(false);
        if (onCancel) {
            onCancel();
        }
    });
    auto* const layout = new QHBoxLayout(this);
    layout->addWidget(progress);
    layout->addWidget(label_, 1);
    layout->addWidget(cancel_);
}

void WaitPanel::setText(const QString& text) {
    const int room = std::max(160, parentWidget()->width() - 320);
    label_->setText(fontMetrics().elidedText(text, Qt::ElideMiddle, room));
    place();
}

void WaitPanel::place() {
    adjustSize();
    const QSize window = parentWidget()->size();
    move(std::max(0, (window.width() - width()) / 2),
         std::max(0, window.height() - height() - 3 * fontMetrics().height()));
    raise();
    show();
}

} // namespace desktop
