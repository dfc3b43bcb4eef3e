#include "hosts/desktop/window/NoticeBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

namespace desktop {

NoticeBar::NoticeBar(QWidget* parent) : QFrame(parent), label_(new QLabel(this)) {
    setAccessibleName(QStringLiteral("Notice"));
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    auto* const picture = new QLabel(this);
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    picture->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(size, size));
    label_->setTextFormat(Qt::PlainText);
    label_->setWordWrap(true);
    label_->setForegroundRole(QPalette::ToolTipText);
    auto* const retry = new QPushButton(QStringLiteral("Try &Again"), this);
    connect(retry, &QPushButton::clicked, this, [this] {
        if (onRetry) {
            onRetry();
        }
    });
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 4, 8, 4);
    layout->addWidget(picture);
    layout->addWidget(label_, 1);
    layout->addWidget(retry);
    hide();
}

void NoticeBar::say(const QString& text) {
    label_->setText(text);
    setVisible(!text.isEmpty());
}

QString NoticeBar::said() const {
    return label_->text();
}

} // namespace desktop
