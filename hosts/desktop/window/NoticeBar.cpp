#include "hosts/desktop/window/NoticeBar.h"

#include <QAccessible>
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
    login_ = makeButton(QStringLiteral("&Log In Again..."), onLogin);
    login_->hide();
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 4, 8, 4);
    layout->addWidget(picture);
    layout->addWidget(label_, 1);
    layout->addWidget(login_);
    layout->addWidget(makeButton(QStringLiteral("&Try Again"), onRetry));
    hide();
}

// The function may be set, or changed, later.
QPushButton* NoticeBar::makeButton(const QString& text, const std::function<void()>& pressed) {
    auto* const button = new QPushButton(text, this);
    connect(button, &QPushButton::clicked, this, [&pressed] {
        if (pressed) {
            pressed();
        }
    });
    return button;
}

void NoticeBar::offerLogin(bool offered) {
    login_->setVisible(offered);
}

void NoticeBar::say(const QString& text) {
    const bool isNews = !text.isEmpty() && text != label_->text();
    label_->setText(text);
    setAccessibleDescription(text);
    setVisible(!text.isEmpty());
    if (isNews) {
        QAccessibleEvent alert(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

QString NoticeBar::said() const {
    return label_->text();
}

} // namespace desktop
