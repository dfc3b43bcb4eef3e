#include "hosts/desktop/window/PathBar.h"

#include "hosts/desktop/look/ElidedLabel.h"

#include <QLabel>
#include <QMenu>
#include <QToolButton>

#include <utility>

namespace desktop {
namespace {

const QString separatorText = QStringLiteral("›");
const QString moreText = QStringLiteral("…");
constexpr int smallestName = 12; // in letters; what the last name gets before the first ones give way
constexpr int lastMargin = 5;    // in pixels; a button has one by itself

} // namespace

PathBar::PathBar(QWidget* parent)
    : QWidget(parent), more_(addButton(moreText)), menu_(new QMenu(this)), last_(new ElidedLabel(this)) {
    setAccessibleName(QStringLiteral("Path"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    more_->setAccessibleName(QStringLiteral("Items above"));
    more_->setToolTip(QStringLiteral("Items above"));
    more_->setPopupMode(QToolButton::InstantPopup);
    more_->setMenu(menu_);
    more_->setStyleSheet(QStringLiteral("QToolButton::menu-indicator { image: none; }"));
    more_->hide();
    QFont bold = font();
    bold.setBold(true);
    last_->setFont(bold);
    last_->setAccessibleName(QStringLiteral("What the list shows"));
}

QToolButton* PathBar::addButton(const QString& name) {
    auto* const button = new QToolButton(this);
    button->setText(QString(name).replace(QLatin1Char('&'), QStringLiteral("&&")));
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

void PathBar::setPath(std::vector<Step> path) {
    if (path == path_) {
        return;
    }
    path_ = std::move(path);
    for (auto* const button : std::exchange(buttons_, {})) {
        button->deleteLater();
        button->hide();
    }
    for (auto* const separator : std::exchange(separators_, {})) {
        delete separator;
    }
    for (std::size_t place = 0; place + 1 < path_.size(); ++place) {
        auto* const button = addButton(path_[place].name);
        button->setAccessibleName(QStringLiteral("Go to %1").arg(path_[place].name));
        connect(button, &QToolButton::clicked, this, [this, id = path_[place].id] {
            if (onChosen) {
                onChosen(id);
            }
        });
        buttons_.push_back(button);
        separators_.push_back(new QLabel(separatorText, this));
    }
    last_->setLine(path_.empty() ? QString() : path_.back().name);
    arrange();
}

std::size_t PathBar::hiddenSteps() const {
    const auto separator = fontMetrics().horizontalAdvance(separatorText);
    int needed = 0;
    for (const auto* const button : buttons_) {
        needed += button->sizeHint().width() + separator;
    }
    const int forLast = lastMargin + qMin(last_->sizeHint().width(), fontMetrics().averageCharWidth() * smallestName);
    std::size_t hidden = 0;
    for (; hidden < buttons_.size() && needed + forLast > width(); ++hidden) {
        // The button of the menu takes the place of the first name that goes.
        needed -= buttons_[hidden]->sizeHint().width() + separator;
        needed += hidden == 0 ? more_->sizeHint().width() + separator : 0;
    }
    return hidden;
}

void PathBar::arrange() {
    hidden_ = hiddenSteps();
    int left = 0;
    const auto place = [&](QWidget& widget, int width) {
        widget.setGeometry(left, 0, width, height());
        widget.show();
        left += width;
    };
    const auto separator = fontMetrics().horizontalAdvance(separatorText);
    more_->setVisible(hidden_ > 0);
    if (hidden_ > 0) {
        place(*more_, more_->sizeHint().width());
        place(*separators_.front(), separator);
        fillMenu();
    }
    for (std::size_t step = 0; step < buttons_.size(); ++step) {
        if (step < hidden_) {
            buttons_[step]->hide();
            separators_[step]->setVisible(step == 0);
        } else {
            place(*buttons_[step], buttons_[step]->sizeHint().width());
            place(*separators_[step], separator);
        }
    }
    left += buttons_.empty() ? 0 : lastMargin;
    place(*last_, qMax(0, width() - left));
}

void PathBar::fillMenu() {
    menu_->clear();
    for (std::size_t step = 0; step < hidden_; ++step) {
        auto* const action = menu_->addAction(buttons_[step]->text());
        connect(action, &QAction::triggered, buttons_[step], &QToolButton::click);
    }
}

QString PathBar::shownText() const {
    QStringList names;
    if (hidden_ > 0) {
        names += moreText;
    }
    for (std::size_t step = hidden_; step < path_.size(); ++step) {
        names += path_[step].name;
    }
    return names.join(QStringLiteral(" › "));
}

QSize PathBar::sizeHint() const {
    return {fontMetrics().averageCharWidth() * 3 * smallestName, more_->sizeHint().height()};
}

QSize PathBar::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * smallestName, more_->sizeHint().height()};
}

void PathBar::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    arrange();
}

} // namespace desktop
