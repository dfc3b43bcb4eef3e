#include "hosts/desktop/window/AutoRefresh.h"

#include "hosts/desktop/list/ViewSettings.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>

#include <algorithm>
#include <array>

namespace desktop {
namespace {

constexpr std::array intervals{0, 10, 30, 60, 300}; // seconds
const QString settingName = QStringLiteral("refreshSeconds");

QString nameOf(int seconds) {
    if (seconds == 0) {
        return QStringLiteral("&Off");
    }
    if (seconds < 60) {
        return QStringLiteral("Every &%1 Seconds").arg(seconds);
    }
    return seconds == 60 ? QStringLiteral("Every &Minute") : QStringLiteral("Every %1 M&inutes").arg(seconds / 60);
}

} // namespace

AutoRefresh::AutoRefresh(Operations& operations, ViewSettings& settings, QWidget& window)
    : operations_(operations), settings_(settings), window_(window), choices_(this) {
    connect(&timer_, &QTimer::timeout, this, [this] { refreshIfIdle(); });
    for (const int seconds : intervals) {
        auto* const action = choices_.addAction(nameOf(seconds));
        action->setCheckable(true);
        action->setChecked(seconds == 0);
        action->setData(seconds);
        connect(action, &QAction::triggered, this, [this, seconds] { setInterval(seconds); });
    }
    start(settings_.state(settingName).toInt());
}

void AutoRefresh::addTo(QMenu& menu) {
    auto* const choice = menu.addMenu(QStringLiteral("Refresh A&utomatically"));
    choice->addActions(choices_.actions());
}

void AutoRefresh::setInterval(int seconds) {
    start(seconds);
    settings_.setState(settingName, QByteArray::number(interval()));
}

void AutoRefresh::start(int seconds) {
    const auto known = std::ranges::find(intervals, seconds) == intervals.end() ? 0 : seconds;
    for (auto* const action : choices_.actions()) {
        action->setChecked(action->data().toInt() == known);
    }
    timer_.stop();
    timer_.setInterval(known * 1'000);
    if (known > 0) {
        timer_.start();
    }
}

bool AutoRefresh::isIdle() const {
    const auto* const focus = QApplication::focusWidget();
    // The editor of a cell belongs to the viewport of its view.
    const auto* const viewport = focus == nullptr ? nullptr : focus->parentWidget();
    const auto* const view =
        viewport == nullptr ? nullptr : qobject_cast<const QAbstractItemView*>(viewport->parentWidget());
    const bool editing = view != nullptr && qobject_cast<const QLineEdit*>(focus) != nullptr;
    return window_.isVisible() && !window_.isMinimized() && !operations_.busy() && !editing &&
           QApplication::activePopupWidget() == nullptr && QApplication::activeModalWidget() == nullptr &&
           QApplication::mouseButtons() == Qt::NoButton;
}

void AutoRefresh::refreshIfIdle() {
    if (isIdle() && !(hasFailed && hasFailed()) && operations_.shell().selection().scope != 0) {
        // The list, not the selected row alone.
        operations_.perform([](shell::Shell& shell) { return shell.refreshList(); });
    }
}

} // namespace desktop
